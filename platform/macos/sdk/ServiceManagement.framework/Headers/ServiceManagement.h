#pragma once

// The Service Management calls that the host makes.

#include <Foundation/Foundation.h>

typedef enum SMAppServiceStatus : NSInteger SMAppServiceStatus;
enum SMAppServiceStatus : NSInteger {
    SMAppServiceStatusNotRegistered = 0,
    SMAppServiceStatusEnabled = 1,
    SMAppServiceStatusRequiresApproval = 2,
    SMAppServiceStatusNotFound = 3,
};

@interface SMAppService : NSObject
@property (class, readonly) SMAppService* mainAppService;
@property (readonly) SMAppServiceStatus status;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
@end
