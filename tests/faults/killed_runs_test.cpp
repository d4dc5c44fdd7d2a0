// A program that is killed at any moment of a session has lost at most what was done since the user last
// rested, and the next run brings the rest back. Seeded; ten times as often where MIRTANE_LONG is set.

#include "play_process.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

namespace mirtane {
namespace {

constexpr unsigned seed = 20041;

// By each of the four ends.
int kills()
{
    return std::getenv("MIRTANE_LONG") != nullptr ? 50 : 5;
}

// mirtane-play with a pipe to type into and one to read its answers from.
class TypedRun {
  public:
    explicit TypedRun(const std::string& home)
    {
        std::array<int, 2> in{}, out{};
        if (pipe(in.data()) != 0 || pipe(out.data()) != 0) return;
        child_ = fork();
        if (child_ == 0) {
            dup2(in[0], STDIN_FILENO);
            dup2(out[1], STDOUT_FILENO);
            for (const int end : {in[0], in[1], out[0], out[1]}) close(end);
            execl(MIRTANE_PLAY, MIRTANE_PLAY, "--home", home.c_str(), nullptr);
            _exit(127);
        }
        close(in[0]);
        close(out[1]);
        in_ = in[1];
        out_ = out[0];
    }
    ~TypedRun()
    {
        end(SIGKILL);
        close(in_);
        close(out_);
    }
    TypedRun(const TypedRun&) = delete;
    TypedRun& operator=(const TypedRun&) = delete;

    void type(const std::string& lines) const
    {
        for (std::size_t done = 0; done < lines.size();) {
            const ssize_t more = write(in_, lines.data() + done, lines.size() - done);
            if (more <= 0) return;
            done += static_cast<std::size_t>(more); // not negative
        }
    }
    // The next line of its answers; empty at its end.
    std::string answer()
    {
        for (;;) {
            const auto end = unread_.find('\n');
            if (end != std::string::npos) {
                const std::string line = unread_.substr(0, end);
                unread_.erase(0, end + 1);
                return line;
            }
            std::array<char, 4096> some{};
            const ssize_t more = read(out_, some.data(), some.size());
            if (more <= 0) return {};
            unread_.append(some.data(), static_cast<std::size_t>(more)); // not negative
        }
    }
    std::string ask(const std::string& question)
    {
        type(question + "\n");
        return answer();
    }
    int count(const std::string& question)
    {
        const std::string text = ask(question);
        int number = -1;
        std::from_chars(text.data(), text.data() + text.size(), number);
        return number;
    }
    void end(int signal)
    {
        if (child_ <= 0) return;
        kill(child_, signal);
        waitpid(child_, nullptr, 0);
        child_ = -1;
    }
    void inputEnds()
    {
        close(in_);
        in_ = -1;
        waitpid(child_, nullptr, 0);
        child_ = -1;
    }

  private:
    pid_t child_ = -1;
    int in_ = -1;
    int out_ = -1;
    std::string unread_;
};

struct End {
    const char* what;
    int signal; // 0: its input ends
    bool keepsAll;
};

constexpr End ends[] = {
    {"killed", SIGKILL, false},
    {"asked to end", SIGTERM, true},
    {"the terminal goes", SIGHUP, true},
    {"interrupted", SIGINT, true},
};

struct KilledRuns : testing::Test {
    KilledRuns() { signal(SIGPIPE, SIG_IGN); }

    // A line that is told apart by its height.
    static std::string lineNumber(int i)
    {
        return "click -300.5 " + std::to_string(100 + i) + "\nclick " + std::to_string(700 + i) +
               " -211\ncancel 0 0\n";
    }

    // Draws until the end comes, which may be in the midst of what was typed.
    void session(const End& end)
    {
        TypedRun run(home());
        run.type("press Command1\n");
        const int acts = std::uniform_int_distribution(5, 60)(random);
        for (int i = 0; i < acts; ++i) {
            run.type(lineNumber(drawn++));
            if (chance(4)) {
                run.type("idle\n");
                ASSERT_EQ(run.count("get session.entCount"), drawn + 1);
                sure = drawn;
            }
        }
        if (end.keepsAll) {
            ASSERT_EQ(run.count("get session.entCount"), drawn + 1);
            sure = drawn;
        } else if (chance(2)) {
            usleep(static_cast<useconds_t>(std::uniform_int_distribution(0, 30'000)(random))); // not negative
        }
        run.end(end.signal);
    }

    void restore(const End& end)
    {
        TypedRun run(home());
        const std::string notice = run.ask("get notice.caption");
        if (sure == 0 && notice == "\"\"") return;
        ASSERT_NE(notice.find("untitled.mtd, "), std::string::npos) << end.what << ": " << notice;
        run.type("press notice.Command1\n");
        const int found = run.count("get session.entCount") - 1;
        EXPECT_GE(found, sure) << end.what;
        EXPECT_LE(found, drawn) << end.what;
        missing = std::max(missing, drawn - found);
        for (int i = 0; i < found; ++i) {
            const std::string slot = run.ask("slot " + std::to_string(i + 1));
            EXPECT_NE(slot.find("\"y1\":" + std::to_string(100 + i) + ","), std::string::npos) << slot;
        }
        run.inputEnds();
    }

    std::string home() const { return process.path("home"); }
    bool chance(int in) { return std::uniform_int_distribution(1, in)(random) == 1; }
    void clear()
    {
        process.removeFolder("home");
        process.makeFolder("home");
        drawn = sure = 0;
    }

    fake::PlayProcess process;
    std::mt19937 random{seed};
    int drawn = 0; // as far as it was typed
    int sure = 0;  // as far as it had been kept when the end came
    int missing = 0;
};

class KilledRunsBy : public KilledRuns, public testing::WithParamInterface<End> {};

TEST_P(KilledRunsBy, LoseNothingThatWasDoneBeforeTheUserRested)
{
    random.seed(seed + static_cast<unsigned>(GetParam().signal)); // not negative
    for (int i = 0; i < kills(); ++i) {
        clear();
        session(GetParam());
        if (HasFatalFailure()) return;
        restore(GetParam());
        if (HasFatalFailure()) return;
    }
    std::cout << kills() << " times " << GetParam().what << ": at most " << missing
              << " lines missing, none of them before a rest\n";
}

INSTANTIATE_TEST_SUITE_P(Ends, KilledRunsBy, testing::ValuesIn(ends));

// A run that is killed again before its user has saved what it brought back.
TEST_F(KilledRuns, MayBeKilledAgain)
{
    session(ends[1]);
    const int before = sure;
    for (int i = 0; i < 3; ++i) {
        TypedRun run(home());
        run.type("press notice.Command1\n");
        EXPECT_EQ(run.count("get session.entCount"), before + 1);
        run.end(SIGKILL);
    }
    TypedRun run(home());
    run.type("press notice.Command2\n");
    EXPECT_EQ(run.ask("get notice.caption"), "\"\"");
    run.end(SIGKILL);
    TypedRun last(home());
    EXPECT_EQ(last.ask("get notice.caption"), "\"\"");
}

// What was made in a run before the work of another came back is in no file either.
TEST_F(KilledRuns, LoseNoHatchForWhatTheyRestored)
{
    session(ends[1]);
    {
        TypedRun run(home());
        run.type("press freecurs\nclick 1000 1010\nclick 1377 1010\ncancel 0 0\npress Command20\n"
                 "click 1200 1010\npress ht5\ntype slates\nenter\nclick 1000 1000\nclick 1420 1040\n"
                 "press fil7\nput frmfile.Text1 roof\nenter\nidle\npress notice.Command1\n");
        EXPECT_EQ(run.count("get session.entCount"), sure + 1);
        run.end(SIGKILL);
    }
    TypedRun next(home());
    next.type("press notice.Command1\n");
    EXPECT_EQ(next.count("get session.entCount"), sure + 1);
    next.type("press ht7\n");
    EXPECT_EQ(next.ask("get List1.rows"), "[\"slates\"]");
}

// What a living program keeps is its own.
TEST_F(KilledRuns, AreNotThoseThatGoOn)
{
    TypedRun living(home());
    living.type("press Command1\n" + lineNumber(0) + "idle\n");
    ASSERT_EQ(living.count("get session.entCount"), 2);
    {
        TypedRun other(home());
        EXPECT_EQ(other.ask("get notice.caption"), "\"\"");
        other.end(SIGTERM);
    }
    living.end(SIGKILL);
    TypedRun next(home());
    EXPECT_NE(next.ask("get notice.caption"), "\"\"");
}

// Two that stood open at once.
TEST_F(KilledRuns, AreOfferedOneAfterAnother)
{
    for (int i = 0; i < 3; ++i) {
        TypedRun run(home());
        for (int line = 0; line <= i; ++line) run.type(lineNumber(line));
        run.type("idle\n");
        ASSERT_EQ(run.count("get session.entCount"), i + 2);
        run.end(SIGKILL);
    }
    TypedRun run(home());
    std::vector<int> found;
    for (int i = 0; i < 3; ++i) {
        run.type("press notice.Command1\n");
        if (i > 0) run.type("press frmfile.Command2\n"); // what was brought back before is given up
        found.push_back(run.count("get session.entCount") - 1);
    }
    std::ranges::sort(found);
    EXPECT_EQ(found, (std::vector{1, 2, 3}));
    EXPECT_EQ(run.ask("get notice.caption"), "\"\"");
}

} // namespace
} // namespace mirtane
