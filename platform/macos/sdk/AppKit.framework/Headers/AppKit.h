#pragma once

// The AppKit calls that the host makes.

#include <CoreGraphics/CoreGraphics.h>
#include <Foundation/Foundation.h>
#include <sys/types.h>

@class CALayer;
@class NSApplication;
@class NSEvent;
@class NSImage;
@class NSMenu;
@class NSMenuItem;
@class NSWindow;

// Fonts, colours, texts and images.

@interface NSFont : NSObject
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize;
+ (NSFont*)boldSystemFontOfSize:(CGFloat)fontSize;
+ (NSFont*)menuFontOfSize:(CGFloat)fontSize;
+ (NSFont*)menuBarFontOfSize:(CGFloat)fontSize;
@end

@interface NSColor : NSObject
@property (class, readonly) NSColor* labelColor;
@property (class, readonly) NSColor* secondaryLabelColor;
@property (class, readonly) NSColor* whiteColor;
@property (class, readonly) NSColor* systemRedColor;
@property (class, readonly) NSColor* selectedContentBackgroundColor;
@property (class, readonly) NSColor* controlBackgroundColor;
@property (class, readonly) NSColor* controlAccentColor;
@property (readonly) CGColorRef CGColor;
- (void)setFill;
@end

extern "C" {

extern NSString* const NSForegroundColorAttributeName;
extern NSString* const NSFontAttributeName;
extern NSString* const NSBaselineOffsetAttributeName;

} // extern "C"

@interface NSBezierPath : NSObject
+ (NSBezierPath*)bezierPathWithRoundedRect:(NSRect)rect
                                   xRadius:(CGFloat)xRadius
                                   yRadius:(CGFloat)yRadius;
- (void)fill;
@end

@interface NSImage : NSObject
- (instancetype)initWithContentsOfURL:(NSURL*)url;
- (BOOL)isTemplate;
- (void)setTemplate:(BOOL)isTemplate;
@property NSSize size;
@end

@interface NSBundle (NSBundleImageExtension)
- (NSImage*)imageForResource:(NSString*)name;
@end

// The application.

typedef enum NSApplicationActivationPolicy : NSInteger NSApplicationActivationPolicy;
enum NSApplicationActivationPolicy : NSInteger {
    NSApplicationActivationPolicyRegular = 0,
    NSApplicationActivationPolicyAccessory = 1,
    NSApplicationActivationPolicyProhibited = 2,
};

@interface NSResponder : NSObject
@property (readonly) BOOL acceptsFirstResponder;
- (void)keyDown:(NSEvent*)event;
- (void)mouseUp:(NSEvent*)event;
- (void)mouseEntered:(NSEvent*)event;
- (void)mouseExited:(NSEvent*)event;
@end

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)flag;
- (void)applicationWillTerminate:(NSNotification*)notification;
@end

@interface NSApplication : NSResponder
@property (class, readonly) NSApplication* sharedApplication;
@property (weak) id<NSApplicationDelegate> delegate;
- (void)run;
- (void)terminate:(id)sender;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (void)activateIgnoringOtherApps:(BOOL)ignoreOtherApps;
@end

// nil until sharedApplication has made the application.
extern "C" NSApplication* NSApp;

typedef NSUInteger NSEventModifierFlags;
enum : NSEventModifierFlags {
    NSEventModifierFlagShift = 1 << 17,
    NSEventModifierFlagControl = 1 << 18,
    NSEventModifierFlagOption = 1 << 19,
    NSEventModifierFlagCommand = 1 << 20,
};

@interface NSEvent : NSObject
@property (class, readonly) NSPoint mouseLocation;
@property (readonly) NSPoint locationInWindow;
@property (readonly) NSEventModifierFlags modifierFlags;
// Raises an exception for any but a key event.
@property (readonly) unsigned short keyCode;
@end

@interface NSScreen : NSObject
@property (class, readonly) NSArray* screens;
@property (readonly) NSRect frame;
@end

@interface NSRunningApplication : NSObject
@property (readonly) NSApplicationActivationPolicy activationPolicy;
@property (readonly, getter=isTerminated) BOOL terminated;
@property (readonly) pid_t processIdentifier;
@end

@interface NSWorkspace : NSObject
@property (class, readonly) NSWorkspace* sharedWorkspace;
@property (readonly) NSArray* runningApplications;
@end

// Views.

@interface NSLayoutConstraint : NSObject
+ (void)activateConstraints:(NSArray*)constraints;
@end

@interface NSLayoutAnchor : NSObject
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor*)anchor;
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor*)anchor constant:(CGFloat)constant;
- (NSLayoutConstraint*)constraintLessThanOrEqualToAnchor:(NSLayoutAnchor*)anchor
                                                constant:(CGFloat)constant;
@end

@interface NSLayoutXAxisAnchor : NSLayoutAnchor
@end

@interface NSLayoutYAxisAnchor : NSLayoutAnchor
@end

typedef NSUInteger NSTrackingAreaOptions;
enum : NSTrackingAreaOptions {
    NSTrackingMouseEnteredAndExited = 0x01,
    NSTrackingActiveAlways = 0x80,
};

@interface NSTrackingArea : NSObject
- (instancetype)initWithRect:(NSRect)rect
                     options:(NSTrackingAreaOptions)options
                       owner:(id)owner
                    userInfo:(NSDictionary*)userInfo;
@end

@interface NSGestureRecognizer : NSObject
- (instancetype)initWithTarget:(id)target action:(SEL)action;
@end

@interface NSClickGestureRecognizer : NSGestureRecognizer
@end

typedef NSUInteger NSAutoresizingMaskOptions;
enum : NSAutoresizingMaskOptions {
    NSViewNotSizable = 0,
    NSViewWidthSizable = 2,
    NSViewHeightSizable = 16,
};

@interface NSView : NSResponder
- (instancetype)initWithFrame:(NSRect)frame;
@property NSRect frame;
@property NSRect bounds;
@property (readonly) NSWindow* window;
- (void)addSubview:(NSView*)view;
@property NSAutoresizingMaskOptions autoresizingMask;
@property BOOL translatesAutoresizingMaskIntoConstraints;
@property (readonly) NSLayoutXAxisAnchor* leadingAnchor;
@property (readonly) NSLayoutXAxisAnchor* trailingAnchor;
@property (readonly) NSLayoutYAxisAnchor* centerYAnchor;
- (NSPoint)convertPoint:(NSPoint)point fromView:(NSView*)view;
@property BOOL needsDisplay;
- (void)drawRect:(NSRect)dirtyRect;
@property BOOL wantsLayer;
@property (strong) CALayer* layer;
- (void)viewDidMoveToWindow;
- (void)updateTrackingAreas;
- (void)addTrackingArea:(NSTrackingArea*)trackingArea;
- (void)removeTrackingArea:(NSTrackingArea*)trackingArea;
- (void)addGestureRecognizer:(NSGestureRecognizer*)gestureRecognizer;
@property (readonly) NSMenuItem* enclosingMenuItem;
@end

// Controls.

typedef enum NSTextAlignment : NSInteger NSTextAlignment;
enum NSTextAlignment : NSInteger {
    NSTextAlignmentLeft = 0,
#if defined(__x86_64__)
    NSTextAlignmentRight = 1,
    NSTextAlignmentCenter = 2,
#else
    NSTextAlignmentCenter = 1,
    NSTextAlignmentRight = 2,
#endif
    NSTextAlignmentNatural = 4,
};

typedef NSInteger NSControlStateValue;
static const NSControlStateValue NSControlStateValueMixed = -1;
static const NSControlStateValue NSControlStateValueOff = 0;
static const NSControlStateValue NSControlStateValueOn = 1;

typedef enum NSCellImagePosition : NSUInteger NSCellImagePosition;
enum NSCellImagePosition : NSUInteger {
    NSNoImage = 0,
    NSImageOnly = 1,
    NSImageLeading = 7,
};

@interface NSControl : NSView
@property (weak) id target;
@property SEL action;
@property (copy) NSString* stringValue;
@property NSInteger integerValue;
@property (strong) NSFont* font;
@property NSTextAlignment alignment;
@end

@interface NSTextField : NSControl
+ (instancetype)labelWithString:(NSString*)stringValue;
+ (instancetype)wrappingLabelWithString:(NSString*)stringValue;
@property (copy) NSColor* textColor;
@end

@interface NSButton : NSControl
+ (instancetype)checkboxWithTitle:(NSString*)title target:(id)target action:(SEL)action;
@property (copy) NSString* title;
@property (copy) NSAttributedString* attributedTitle;
@property (strong) NSImage* image;
@property NSCellImagePosition imagePosition;
@property NSControlStateValue state;
@end

@interface NSStepper : NSControl
@property double minValue;
@property double maxValue;
@property double increment;
@end

@interface NSImageView : NSControl
@property (strong) NSImage* image;
@end

// Menus and the status bar.

@protocol NSMenuDelegate <NSObject>
@optional
- (void)menuWillOpen:(NSMenu*)menu;
@end

@interface NSMenu : NSObject
- (instancetype)initWithTitle:(NSString*)title;
- (void)addItem:(NSMenuItem*)item;
- (void)cancelTracking;
@property BOOL autoenablesItems;
@property (weak) id<NSMenuDelegate> delegate;
@end

@interface NSMenuItem : NSObject
+ (NSMenuItem*)separatorItem;
- (instancetype)initWithTitle:(NSString*)title
                       action:(SEL)action
                keyEquivalent:(NSString*)keyEquivalent;
@property (weak) id target;
@property (copy) NSString* title;
@property NSControlStateValue state;
@property (strong) NSMenu* submenu;
@property (strong) NSView* view;
@property (readonly) NSMenu* menu;
@end

static const CGFloat NSVariableStatusItemLength = -1;

@interface NSStatusBarButton : NSButton
@end

@interface NSStatusItem : NSObject
@property (readonly) NSStatusBarButton* button;
@property (strong) NSMenu* menu;
@end

@interface NSStatusBar : NSObject
@property (class, readonly) NSStatusBar* systemStatusBar;
// The bar does not keep the item.
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
@end

// Windows.

typedef NSUInteger NSWindowStyleMask;
enum : NSWindowStyleMask {
    NSWindowStyleMaskTitled = 1,
    NSWindowStyleMaskClosable = 2,
};

typedef enum NSBackingStoreType : NSUInteger NSBackingStoreType;
enum NSBackingStoreType : NSUInteger { NSBackingStoreBuffered = 2 };

@interface NSWindow : NSResponder
- (instancetype)initWithContentRect:(NSRect)contentRect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backingStoreType
                              defer:(BOOL)flag;
@property (copy) NSString* title;
@property (strong) NSView* contentView;
// YES unless set.
@property (getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
- (void)center;
- (void)close;
- (void)makeKeyAndOrderFront:(id)sender;
- (BOOL)makeFirstResponder:(NSResponder*)responder;
@end
