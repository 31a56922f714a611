#pragma once

// The Foundation calls that the host makes.

#include <CoreFoundation/CoreFoundation.h>
#include <objc/NSObject.h>
#include <objc/runtime.h>

@class NSArray;
@class NSDictionary;
@class NSNotification;

typedef double NSTimeInterval;
typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

// What `for (x in y)` compiles to.
typedef struct {
    unsigned long state;
    id* itemsPtr;
    unsigned long* mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id*)buffer
                                    count:(NSUInteger)length;
@end

@protocol NSCopying
@end

typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding { NSUTF8StringEncoding = 4 };

@interface NSString : NSObject <NSCopying>
- (instancetype)initWithBytes:(const void*)bytes
                       length:(NSUInteger)length
                     encoding:(NSStringEncoding)encoding;
- (NSUInteger)lengthOfBytesUsingEncoding:(NSStringEncoding)encoding;
@property (readonly) const char* UTF8String;
@end

extern "C" void NSLog(NSString* format, ...) __attribute__((format(__NSString__, 1, 2)));

@interface NSError : NSObject
@end

@interface NSValue : NSObject
@end

@interface NSNumber : NSValue
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithInteger:(NSInteger)value;
+ (NSNumber*)numberWithDouble:(double)value;
@end

@interface NSData : NSObject
+ (instancetype)dataWithBytes:(const void*)bytes length:(NSUInteger)length;
@property (readonly) const void* bytes;
@property (readonly) NSUInteger length;
@end

@interface NSArray : NSObject <NSFastEnumeration>
+ (instancetype)arrayWithObjects:(const id[])objects count:(NSUInteger)count;
@end

@interface NSMutableArray : NSArray
- (void)addObject:(id)object;
@end

@interface NSDictionary : NSObject
+ (instancetype)dictionaryWithObjects:(const id[])objects
                              forKeys:(const id<NSCopying>[])keys
                                count:(NSUInteger)count;
@end

@interface NSMutableDictionary : NSDictionary
- (void)setObject:(id)object forKey:(id<NSCopying>)key;
@end

@interface NSDate : NSObject
+ (instancetype)dateWithTimeIntervalSinceNow:(NSTimeInterval)seconds;
@end

@interface NSTimer : NSObject
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)interval
                          repeats:(BOOL)repeats
                            block:(void (^)(NSTimer* timer))block;
+ (NSTimer*)scheduledTimerWithTimeInterval:(NSTimeInterval)interval
                                   repeats:(BOOL)repeats
                                     block:(void (^)(NSTimer* timer))block;
- (void)invalidate;
@property (copy) NSDate* fireDate;
@property (readonly) NSTimeInterval timeInterval;
@end

typedef NSString* NSRunLoopMode;

extern "C" {

extern const NSRunLoopMode NSDefaultRunLoopMode;
extern const NSRunLoopMode NSRunLoopCommonModes;

} // extern "C"

@interface NSRunLoop : NSObject
@property (class, readonly) NSRunLoop* mainRunLoop;
- (void)addTimer:(NSTimer*)timer forMode:(NSRunLoopMode)mode;
@end

@interface NSURL : NSObject
+ (NSURL*)fileURLWithPath:(NSString*)path;
@property (readonly) NSString* path;
@end

@interface NSAttributedString : NSObject
- (instancetype)initWithString:(NSString*)string attributes:(NSDictionary*)attributes;
@end

@interface NSBundle : NSObject
@property (class, readonly) NSBundle* mainBundle;
- (instancetype)initWithPath:(NSString*)path;
@property (readonly) NSString* bundleIdentifier;
@property (readonly) NSString* bundlePath;
- (NSURL*)URLForResource:(NSString*)name withExtension:(NSString*)extension;
- (NSURL*)URLForResource:(NSString*)name
           withExtension:(NSString*)extension
            subdirectory:(NSString*)subdirectory;
@end

@interface NSUserDefaults : NSObject
@property (class, readonly) NSUserDefaults* standardUserDefaults;
- (void)registerDefaults:(NSDictionary*)registrationDictionary;
- (BOOL)boolForKey:(NSString*)key;
- (double)doubleForKey:(NSString*)key;
- (NSData*)dataForKey:(NSString*)key;
- (NSArray*)stringArrayForKey:(NSString*)key;
- (void)setBool:(BOOL)value forKey:(NSString*)key;
- (void)setDouble:(double)value forKey:(NSString*)key;
- (void)setObject:(id)value forKey:(NSString*)key;
@end
