#pragma once

#include "platform/Menu.h"
#include "platform/macos/Holder.h"

#import <AppKit/AppKit.h>

/// The delegate of every menu: hands AppKit's call on, and tells which menu of the seam it is.
@interface QuellbarMenuDelegate : NSObject <NSMenuDelegate>
/// Null when it is gone.
@property (nonatomic, assign) platform::Menu* seamMenu;
@end

/// The target of every item: runs the item's action, and tells which item of the seam it is.
@interface QuellbarMenuItemTarget : NSObject
/// Null when it is gone.
@property (nonatomic, assign) platform::MenuItem* seamItem;
- (void)choose:(id)sender;
@end

// AppKit keeps neither delegates nor targets: the peers do.

struct platform::Menu::Peer {
    macos::Object<NSMenu*> menu;
    macos::Object<QuellbarMenuDelegate*> adapter;
    std::weak_ptr<MenuDelegate> delegate;
    // AppKit keeps the items of `menu`; here are the seam's items to which they belong.
    std::vector<std::shared_ptr<MenuItem>> items;
};

struct platform::MenuItem::Peer {
    macos::Object<NSMenuItem*> item;
    macos::Object<QuellbarMenuItemTarget*> target; // nil for a separator
    Action action;
    std::shared_ptr<Menu> submenu;
    std::shared_ptr<View> view;
};

namespace platform::macos {

/// The seam's objects; null for nil, and when they are gone.
[[nodiscard]] Menu* menuOf(NSMenu* menu);
[[nodiscard]] MenuItem* menuItemOf(NSMenuItem* item);

} // namespace platform::macos
