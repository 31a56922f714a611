#include "unit/corners/CornerTest.h"

#include "settings/Preferences.h"

using simulated::desktop;

CornerTest::CornerTest() {
    Preferences::shared();
    desktop().workspace.launch("Mail").openWindow("Inbox");
    forget();
}

void CornerTest::enable(const platform::StringArray& names) {
    desktop().userDefaults.stored["hotCorners"] = names;
}

void CornerTest::startAndForget() {
    monitor.start();
    forget();
}

void CornerTest::forget() {
    desktop().calls.clear();
    desktop().log.messages.clear();
}

std::vector<std::string> CornerTest::messages() {
    std::vector<std::string> texts;
    for (const auto& message : desktop().log.messages) {
        texts.push_back(message.text);
    }
    return texts;
}

std::size_t CornerTest::reveals() {
    return desktop().calls.of({"setAttributeValue"}).size();
}
