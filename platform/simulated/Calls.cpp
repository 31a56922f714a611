#include "platform/simulated/Calls.h"

#include "platform/simulated/Misuse.h"

#include <algorithm>

namespace simulated {
namespace {

std::string lineFor(std::string_view operation, std::initializer_list<std::string_view> arguments) {
    std::string line(operation);
    std::string_view separator = "(";
    for (const std::string_view argument : arguments) {
        line += separator;
        line += argument;
        separator = ", ";
    }
    return line + (arguments.size() == 0 ? "()" : ")");
}

std::string_view operationOf(std::string_view call) {
    return call.substr(0, call.find('('));
}

} // namespace

std::vector<std::string> Calls::of(std::initializer_list<std::string_view> operations) const {
    std::vector<std::string> calls;
    std::ranges::copy_if(calls_, std::back_inserter(calls), [&](const std::string& call) {
        return std::ranges::count(operations, operationOf(call)) > 0;
    });
    return calls;
}

void Calls::during(std::string call, std::function<void()> action) {
    awaited_.emplace(std::move(call), std::move(action));
}

void Calls::record(std::string_view operation, std::initializer_list<std::string_view> arguments) {
    const std::string call = lineFor(operation, arguments);
    if (std::this_thread::get_id() != mainThread_) {
        misuse(call + " is called outside the main thread");
    }
    calls_.push_back(call);
    if (auto awaited = awaited_.extract(call)) {
        awaited.mapped()();
    }
}

} // namespace simulated
