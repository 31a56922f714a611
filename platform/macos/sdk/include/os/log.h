#pragma once

// The unified-log calls that the host makes. The C library's stub, which comes with the compiler,
// has their symbols.

#include <objc/NSObject.h>
#include <stdint.h>

@protocol OS_os_log <NSObject>
@end

typedef NSObject<OS_os_log>* os_log_t;
typedef uint8_t os_log_type_t;

enum : os_log_type_t { OS_LOG_TYPE_DEFAULT = 0 };

extern "C" {

struct mach_header;
extern struct mach_header __dso_handle;

os_log_t os_log_create(const char* subsystem, const char* category);
bool os_log_type_enabled(os_log_t log, os_log_type_t type);
void _os_log_impl(void* image, os_log_t log, os_log_type_t type, const char* format,
                  uint8_t* buffer, uint32_t size);

} // extern "C"

// A message is stored as its arguments and the place of its format in the program, and put together
// by whoever reads the log. The reader finds formats in this one section only, so `format` has to
// be a literal and to stay there.
#define os_log(log, format, ...)                                                                   \
    do {                                                                                           \
        os_log_t os_log_handle = (log);                                                            \
        if (os_log_type_enabled(os_log_handle, OS_LOG_TYPE_DEFAULT)) {                             \
            static const char os_log_text[] __attribute__((section("__TEXT,__oslogstring"))) =     \
                format;                                                                            \
            uint8_t os_log_buffer[__builtin_os_log_format_buffer_size(format, ##__VA_ARGS__)];     \
            _os_log_impl(&__dso_handle, os_log_handle, OS_LOG_TYPE_DEFAULT, os_log_text,           \
                         (uint8_t*)__builtin_os_log_format(os_log_buffer, format, ##__VA_ARGS__),  \
                         (uint32_t)sizeof os_log_buffer);                                          \
        }                                                                                          \
    } while (false)
