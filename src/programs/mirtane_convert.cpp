// Drawings and DXF files into files of other formats, without a window.

#include "convert/compare.h"
#include "convert/convert.h"
#include "convert/workers.h"
#include "platform/posix/size_limit.h"

#include <QGuiApplication>

#include <unistd.h>

#include <chrono>
#include <iostream>
#include <optional>

namespace {

using namespace mirtane::convert;

void complain(const std::string& what)
{
    std::cerr << "mirtane-convert: " << what << '\n';
}

// Tells a user at a terminal how far it is; a log has only the lines of what went wrong.
class Progress {
  public:
    explicit Progress(std::size_t total) : total_(total) {}

    void begin(std::size_t number, const std::string& name) const
    {
        if (onTerminal_) std::cerr << clearLine << number << '/' << total_ << ' ' << name << std::flush;
    }
    void end() const
    {
        if (onTerminal_) std::cerr << clearLine << std::flush;
    }

  private:
    static constexpr const char* clearLine = "\r\033[K";

    bool onTerminal_ = isatty(STDERR_FILENO) == 1;
    std::size_t total_;
};

constexpr int notAll = 1;
constexpr int wrongUsage = 2;
constexpr int partLeftOut = 3;

// The exit status when one more job is finished.
int statusAfter(int status, const Outcome& outcome)
{
    if (outcome.fault) return notAll;
    return outcome.leftOut && status == 0 ? partLeftOut : status;
}

void tell(const Job& job, const Outcome& outcome)
{
    for (const std::string& remark : outcome.remarks) complain(job.named + ": " + remark);
    if (outcome.fault) complain(job.named + ": " + *outcome.fault);
}

int convertOneByOne(const Arguments& arguments)
{
    const Progress progress(arguments.jobs.size());
    int status = 0;
    for (std::size_t i = 0; i < arguments.jobs.size(); ++i) {
        const Job& job = arguments.jobs[i];
        progress.begin(i + 1, job.named);
        const Outcome outcome = convert(job, arguments.wishes);
        progress.end();
        tell(job, outcome);
        status = statusAfter(status, outcome);
    }
    return status;
}

int compareBoth(const Arguments& arguments)
{
    const Outcome outcome = compare(arguments.jobs[0], arguments.jobs[1], arguments.wishes);
    if (outcome.fault) complain(*outcome.fault);
    for (const std::string& remark : outcome.remarks) std::cout << remark << std::endl;
    return outcome.fault ? notAll : 0;
}

// What the program needs of the toolkit; made after the last process was split off.
struct Toolkit {
    int argc;
    char** argv;
    std::optional<QGuiApplication> application{};

    void start()
    {
        // What the toolkit has to say of the machine would stand among the lines about failed files.
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        // No window is ever opened, so none of the machine's displays is asked for.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application.emplace(argc, argv);
    }
};

int convertAtOnce(const Arguments& arguments, Toolkit& toolkit)
{
    const auto begun = std::chrono::steady_clock::now();
    const Progress progress(arguments.jobs.size());
    const Work work{[&toolkit] { toolkit.start(); },
                    [&arguments](const Job& job) { return convert(job, arguments.wishes); }};
    const auto finished = convertWithWorkers(arguments.jobs, arguments.workers, work,
                                             [&progress](std::size_t count) { progress.begin(count, ""); });
    progress.end();
    int status = 0;
    for (std::size_t i = 0; i < finished.size(); ++i) {
        tell(arguments.jobs[i], finished[i].outcome);
        status = statusAfter(status, finished[i].outcome);
    }
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begun;
    std::cout << tableOf(arguments.jobs, finished, seconds.count()) << std::flush;
    return status;
}

int run(const std::vector<std::string>& words, Toolkit& toolkit)
{
    try {
        const Arguments arguments = argumentsOf(words);
        if (arguments.help || arguments.version) {
            std::cout << (arguments.help ? helpText : "mirtane-convert 4.00\n") << std::flush;
            return std::cout ? 0 : notAll;
        }
        if (arguments.workers > 0) return convertAtOnce(arguments, toolkit);
        toolkit.start();
        return arguments.compare ? compareBoth(arguments) : convertOneByOne(arguments);
    } catch (const WrongUsage& usage) {
        complain(usage.reason + " (mirtane-convert --help tells more)");
        return wrongUsage;
    }
}

} // namespace

int main(int argc, char* argv[])
{
    mirtane::outliveSizeLimit();
    const std::vector<std::string> words(argv + 1, argv + argc); // before the toolkit takes words of its own
    Toolkit toolkit{argc, argv};
    return run(words, toolkit);
}
