#include "contract/World.h"
#include "platform/Bundle.h"

#include <algorithm>

namespace {

/// Whether this is names of letters, digits and hyphens with dots between them.
bool isReverseDomainName(std::string_view text) {
    const auto isPartOfAName = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '-';
    };
    const auto dot = text.find('.');
    const std::string_view name = text.substr(0, dot);
    return !name.empty() && std::ranges::all_of(name, isPartOfAName) &&
           (dot == std::string_view::npos || isReverseDomainName(text.substr(dot + 1)));
}

using BundleContract = contract::WorldTest;

TEST_F(BundleContract, TheMainBundleIsOneObject) {
    EXPECT_EQ(&platform::Bundle::main(), &platform::Bundle::main());
}

TEST_F(BundleContract, ItsIdentifierIsAReverseDomainNameOrEmpty) {
    const std::string_view identifier = platform::Bundle::main().bundleIdentifier();
    EXPECT_TRUE(identifier.empty() || isReverseDomainName(identifier)) << identifier;
}

} // namespace
