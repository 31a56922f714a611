#pragma once

#import <CoreFoundation/CoreFoundation.h>
#import <objc/NSObject.h>

#include <utility>

namespace platform::macos {

/// Owns one reference to a counted thing, or none: copies count one more, destruction counts one
/// less. Which count is `Counting`'s to say.
template <typename Reference, typename Counting>
class Holder {
  public:
    Holder() = default;

    /// Takes over a reference that the caller owns: what alloc, init, new and copy give, and C
    /// functions with Create or Copy in their name.
    [[nodiscard]] static Holder adopt(Reference reference) { return Holder(reference); }

    /// Keeps a reference that is only lent: what everything else gives.
    [[nodiscard]] static Holder share(Reference reference) {
        Counting::retain(reference);
        return Holder(reference);
    }

    Holder(const Holder& other) : Holder(share(other.reference_)) {}
    Holder(Holder&& other) noexcept : reference_(std::exchange(other.reference_, nullptr)) {}
    Holder& operator=(const Holder& other) { return *this = Holder(other); }
    Holder& operator=(Holder&& other) noexcept {
        std::swap(reference_, other.reference_);
        return *this;
    }
    ~Holder() { Counting::release(reference_); }

    /// Lends the reference for as long as this holder keeps it; null when there is none.
    [[nodiscard]] Reference get() const { return reference_; }

  private:
    explicit Holder(Reference reference) : reference_(reference) {}

    Reference reference_ = nullptr;
};

struct ObjectCounting {
    static void retain(id object) { [object retain]; }
    static void release(id object) { [object release]; }
};

// Core Foundation, unlike Objective-C, does not put up with null.
struct CFCounting {
    static void retain(CFTypeRef object) {
        if (object != nullptr) {
            CFRetain(object);
        }
    }
    static void release(CFTypeRef object) {
        if (object != nullptr) {
            CFRelease(object);
        }
    }
};

/// An Objective-C object, for example `Object<NSString*>`.
template <typename Pointer>
using Object = Holder<Pointer, ObjectCounting>;

/// A Core Foundation object, for example `CFObject<CFArrayRef>`.
template <typename Reference>
using CFObject = Holder<Reference, CFCounting>;

} // namespace platform::macos
