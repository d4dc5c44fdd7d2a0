#include "soak.h"

#include "disk_contents.h"
#include "events.h"
#include "health.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sys/time.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace mirtane::soak {
namespace {

constexpr int eventsBetweenChecks = 100;
constexpr long secondsForThem = 30;

// One start of the program and all that is done with it.
class Play {
  public:
    explicit Play(std::uint64_t seed)
        : seed_(seed), random_(seed), manner_(random_.oneIn(2) ? Manner::tame : Manner::wild)
    {
        fillDisk(stage_, random_, manner_ != Manner::tame);
        files_ = stage_.disk.files;
        stage_.shell.start();
        if (random_.oneIn(8)) openCrowded(hand_);
    }

    // Goes on to that many events, or to the end of the program. What is wrong, or "".
    std::string goOn(std::size_t events)
    {
        while (!stage_.shell.ended() && hand_.lines().size() < events)
            doSomething(stage_, hand_, random_, manner_);
        return faultOf(stage_, manner_);
    }

    bool ended() const { return stage_.shell.ended(); }
    std::size_t events() const { return hand_.lines().size(); }

    // Leaves the script, and the files as they were at the start, in a folder. The words that tell of it.
    std::string keep(const std::string& fault) const
    {
        const std::filesystem::path folder = "soak-" + std::to_string(seed_);
        std::filesystem::create_directories(folder / "home" / "sub");
        for (const auto& [path, file] : files_) {
            std::ofstream out(folder / "home" / std::filesystem::path(path).filename(), std::ios::binary);
            for (const std::uint8_t byte : file) out.put(static_cast<char>(byte)); // the same bits
        }
        std::ofstream script(folder / "session.play");
        script << "# " << fault << "\n# on a copy of home: mirtane-play --size " << surfaceWidth << "x"
               << surfaceHeight << " --home home session.play\n";
        for (const std::string& line : hand_.lines()) script << line << '\n';
        return fault + "; one session of it: --session " + std::to_string(seed_) + ", its " +
               std::to_string(events()) + " lines: " + std::filesystem::absolute(folder).string();
    }

  private:
    std::uint64_t seed_;
    Random random_;
    Manner manner_;
    Stage stage_;
    Hand hand_{stage_};
    std::map<std::string, Bytes> files_;
};

Play* underWay = nullptr; // for the ends that come without a word

void tellWhatWasUnderWay()
{
    if (underWay != nullptr)
        std::cerr << underWay->keep("the program came to an end of its own") << std::endl;
    underWay = nullptr;
}

extern "C" void onSignal(int number)
{
    tellWhatWasUnderWay();
    _exit(128 + number);
}

// Seconds of the processor, for others may use it meanwhile; 0 for any number.
void allow(long seconds)
{
    const itimerval once{{0, 0}, {seconds, 0}};
    setitimer(ITIMER_PROF, &once, nullptr);
}

void tellAtTheEnd()
{
    std::signal(SIGPROF, onSignal); // an event that does not end
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(tellWhatWasUnderWay);
    std::signal(SIGABRT, onSignal);
#else
    for (const int number : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS}) std::signal(number, onSignal);
#endif
}

} // namespace

std::string playSession(std::uint64_t seed, int events, std::int64_t& played)
{
    const auto play = std::make_unique<Play>(seed);
    underWay = play.get();
    tellAtTheEnd();
    std::string fault;
    while (fault.empty() && !play->ended() && play->events() < static_cast<std::size_t>(events)) { // above 0
        allow(secondsForThem);
        fault = play->goOn(play->events() + eventsBetweenChecks);
    }
    allow(0);
    underWay = nullptr;
    played += static_cast<std::int64_t>(play->events()); // some thousands
    return fault.empty() ? "" : play->keep(fault);
}

std::string play(const Plan& plan)
{
    Random seeds(plan.seed);
    for (std::int64_t played = 0; played < plan.events;) {
        const auto left =
            static_cast<int>(std::min<std::int64_t>(plan.events - played, plan.eventsOfASession));
        const std::string fault = playSession(seeds.next() % 1'000'000'000, left, played);
        if (!fault.empty()) return fault;
    }
    return "";
}

} // namespace mirtane::soak
