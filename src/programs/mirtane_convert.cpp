// Drawings and DXF files into files of other formats, without a window.

#include "convert/convert.h"

#include <QGuiApplication>

#include <unistd.h>

#include <iostream>

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

int convertAll(const Arguments& arguments)
{
    const Progress progress(arguments.jobs.size());
    constexpr int partLeftOut = 3;
    int status = 0;
    for (std::size_t i = 0; i < arguments.jobs.size(); ++i) {
        const Job& job = arguments.jobs[i];
        progress.begin(i + 1, job.named);
        const Outcome outcome = convert(job, arguments.wishes);
        progress.end();
        for (const std::string& remark : outcome.remarks) complain(job.named + ": " + remark);
        if (outcome.fault) complain(job.named + ": " + *outcome.fault);
        if (outcome.leftOut && status == 0) status = partLeftOut;
        if (outcome.fault) status = 1;
    }
    return status;
}

int run(const std::vector<std::string>& words)
{
    constexpr int wrongUsage = 2;
    try {
        const Arguments arguments = argumentsOf(words);
        if (!arguments.help) return convertAll(arguments);
        std::cout << helpText << std::flush;
        return std::cout ? 0 : 1;
    } catch (const WrongUsage& usage) {
        complain(usage.reason + " (mirtane-convert --help tells more)");
        return wrongUsage;
    }
}

} // namespace

int main(int argc, char* argv[])
{
    // What the toolkit has to say of the machine would stand among the lines about failed files.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    // No window is ever opened, so none of the machine's displays is asked for.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::vector<std::string> words(argv + 1, argv + argc); // before the toolkit takes words of its own
    QGuiApplication application(argc, argv);
    return run(words);
}
