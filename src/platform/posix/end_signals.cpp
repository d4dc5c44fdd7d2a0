#include "platform/posix/end_signals.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

namespace mirtane {
namespace {

constexpr int endSignals[] = {SIGTERM, SIGHUP, SIGINT};

volatile std::sig_atomic_t signalThatCame = 0;
int pipeEnds[2] = {-1, -1}; // what a handler may use is known before it runs

extern "C" void noteSignal(int signal)
{
    const int fault = errno;
    signalThatCame = signal;
    const char byte = 0;
    // A full pipe has told it already.
    if (::write(pipeEnds[1], &byte, 1) < 0) errno = fault;
    errno = fault;
}

// A program that was told at its start to outlive one of them (nohup) goes on doing so.
bool isIgnored(int signal)
{
    struct sigaction now = {};
    return ::sigaction(signal, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
}

void handle(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler; // without SA_RESTART: who waits for input is to wake up
    for (const int signal : endSignals) {
        if (!isIgnored(signal)) ::sigaction(signal, &action, nullptr);
    }
}

} // namespace

EndSignals::EndSignals()
{
    signalThatCame = 0;
    if (::pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) == 0) handle(noteSignal);
}

EndSignals::~EndSignals()
{
    handle(SIG_DFL);
    for (int& end : pipeEnds) {
        ::close(end);
        end = -1;
    }
}

int EndSignals::descriptor() const
{
    return pipeEnds[0];
}

int EndSignals::came()
{
    return signalThatCame;
}

void EndSignals::endBy(int signal)
{
    handle(SIG_DFL);
    ::raise(signal);
    std::_Exit(128 + signal); // where it is blocked: as a shell tells of a program that a signal ended
}

} // namespace mirtane
