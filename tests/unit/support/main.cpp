#include <gmock/gmock.h>

#include <cstdio>
#include <cstdlib>

namespace {

/// Tests that share a process would share the program's process-wide objects, and fail for reasons
/// that are not theirs.
class OneTestAProcess : public testing::EmptyTestEventListener {
    void OnTestProgramStart(const testing::UnitTest& program) override {
        if (program.test_to_run_count() > 1) {
            std::fputs("Each test needs a process of its own: run them with ctest, or choose one "
                       "with --gtest_filter.\n",
                       stderr);
            std::exit(EXIT_FAILURE);
        }
    }
};

} // namespace

int main(int argc, char** argv) {
    testing::InitGoogleMock(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new OneTestAProcess);
    return RUN_ALL_TESTS();
}
