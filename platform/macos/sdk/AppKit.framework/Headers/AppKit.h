#pragma once

// The AppKit calls that the host makes.

#include <Foundation/Foundation.h>
#include <sys/types.h>

typedef enum NSApplicationActivationPolicy : NSInteger NSApplicationActivationPolicy;
enum NSApplicationActivationPolicy : NSInteger {
    NSApplicationActivationPolicyRegular = 0,
    NSApplicationActivationPolicyAccessory = 1,
    NSApplicationActivationPolicyProhibited = 2,
};

@interface NSResponder : NSObject
@end

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (void)applicationWillTerminate:(NSNotification*)notification;
@end

@interface NSApplication : NSResponder
@property (class, readonly) NSApplication* sharedApplication;
@property (weak) id<NSApplicationDelegate> delegate;
- (void)run;
- (void)terminate:(id)sender;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
@end

// nil until sharedApplication has made the application.
extern "C" NSApplication* NSApp;

@interface NSEvent : NSObject
@property (class, readonly) NSPoint mouseLocation;
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
