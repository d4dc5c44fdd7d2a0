// A test program runs all its cases in one process. So the case that ends the process, or hangs, is named
// here: the words of the sanitizer alone don't tell which it was.

#include <gtest/gtest.h>

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

constexpr unsigned patience = 120; // seconds for a case

std::string running; // "Suite.Case", or nothing between two cases
pid_t process = 0;

void say(const char* words)
{
    std::fflush(stdout);
    const std::string line = "\n[ RUNNING  ] " + running + words;
    if (write(STDERR_FILENO, line.data(), line.size()) < 0) return; // nobody is left to tell
}

// A child of the case may end as it likes.
void nameIt()
{
    if (!running.empty() && getpid() == process) say(" ended the program\n");
}

void onAlarm(int /*signal*/)
{
    say(" takes too long\n");
    std::_Exit(EXIT_FAILURE);
}

void onSignal(int number)
{
    nameIt();
    std::signal(number, SIG_DFL);
    std::raise(number);
}

void watchTheEnd()
{
    process = getpid();
    std::atexit(nameIt);
    std::signal(SIGALRM, onAlarm);
    std::signal(SIGABRT, onSignal);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(nameIt); // it takes the other signals itself
#else
    for (const int number : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) std::signal(number, onSignal);
#endif
}

class RunningCase : public testing::EmptyTestEventListener {
    void OnTestProgramStart(const testing::UnitTest& /*all*/) override { watchTheEnd(); }

    void OnTestStart(const testing::TestInfo& test) override
    {
        running = std::string(test.test_suite_name()) + "." + test.name();
        alarm(patience);
    }

    void OnTestEnd(const testing::TestInfo& /*test*/) override
    {
        alarm(0);
        running.clear();
    }
};

// In every test program, whatever main it has.
const bool appended = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new RunningCase); // which they delete
    return true;
}();

} // namespace
