// convert/workers.cpp: each worker is a process that was split off this one, and gets the number of a job and
// gives its outcome back over a socket that keeps messages apart.

#include "convert/workers.h"

#include "text/numbers.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <optional>
#include <string_view>

namespace mirtane::convert {
namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point begun)
{
    return std::chrono::duration<double>(Clock::now() - begun).count();
}

constexpr std::size_t longestMessage = 65536;
constexpr char fieldEnd = '\0';

// "p" where a part was left out, "f" where it failed; the fault; the remarks.
std::string messageOf(const Outcome& outcome)
{
    std::string message = outcome.leftOut ? "p" : "w";
    message += outcome.fault ? 'f' : 'd';
    message += outcome.fault.value_or("") + fieldEnd;
    for (const std::string& remark : outcome.remarks) message += remark + fieldEnd;
    message.resize(std::min(message.size(), longestMessage));
    return message;
}

Outcome outcomeOf(std::string_view message)
{
    Outcome outcome;
    outcome.leftOut = message[0] == 'p';
    const bool failed = message[1] == 'f';
    message.remove_prefix(2);
    std::vector<std::string> fields;
    while (!message.empty()) {
        const std::size_t end = std::min(message.find(fieldEnd), message.size());
        fields.emplace_back(message.substr(0, end));
        message.remove_prefix(std::min(end + 1, message.size()));
    }
    if (failed) outcome.fault = fields.empty() ? std::string() : fields.front();
    if (!fields.empty()) outcome.remarks.assign(fields.begin() + 1, fields.end());
    return outcome;
}

struct Worker {
    pid_t process = -1;
    int socket = -1;
    std::optional<std::size_t> job; // the one it is at
    Clock::time_point begun;
};

class Workers {
  public:
    Workers(const std::vector<Job>& jobs, const Work& work) : jobs_(jobs), work_(work), finished_(jobs.size())
    {
    }
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;
    ~Workers();

    void start(int count);
    // Waits until at least one job is finished. False once all are.
    bool wait();
    std::size_t count() const { return count_; }
    std::vector<Finished> take() { return std::move(finished_); }

  private:
    void split(Worker& worker);
    [[noreturn]] void serve(int socket);
    void give(Worker& worker);
    void hear(Worker& worker);
    void finish(Worker& worker, Outcome outcome);
    void fail(Worker& worker, const char* why);
    void bury(Worker& worker);

    const std::vector<Job>& jobs_;
    const Work& work_;
    std::vector<Finished> finished_;
    std::vector<Worker> workers_;
    std::size_t next_ = 0, count_ = 0;
};

// A worker hears the end of what it is given, and ends.
Workers::~Workers()
{
    for (Worker& worker : workers_) bury(worker);
}

void Workers::bury(Worker& worker)
{
    if (worker.process < 0) return;
    close(worker.socket);
    waitpid(worker.process, nullptr, 0);
    worker.process = -1;
}

void Workers::start(int count)
{
    const std::size_t wished = static_cast<std::size_t>(count); // above 0
    workers_.resize(std::min(wished, jobs_.size()));
    for (Worker& worker : workers_) give(worker);
}

// The new process must hold no end of another one's socket, or that one would never hear its end.
void Workers::split(Worker& worker)
{
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends.data()) != 0) return;
    std::fflush(nullptr);
    const pid_t process = fork();
    if (process == 0) {
        for (const Worker& other : workers_) {
            if (other.process >= 0) close(other.socket);
        }
        close(ends[0]);
        serve(ends[1]);
    }
    close(ends[1]);
    if (process < 0) close(ends[0]);
    if (process > 0) worker = {process, ends[0], {}, {}};
}

void Workers::serve(int socket)
{
    work_.begin();
    std::size_t job = 0;
    while (recv(socket, &job, sizeof job, 0) == sizeof job) {
        const std::string message = messageOf(work_.convert(jobs_[job]));
        if (send(socket, message.data(), message.size(), MSG_NOSIGNAL) < 0) break;
    }
    _exit(0);
}

void Workers::give(Worker& worker)
{
    while (next_ < jobs_.size()) {
        if (worker.process < 0) split(worker);
        worker.job = next_++;
        worker.begun = Clock::now();
        if (worker.process < 0) {
            fail(worker, "no process for it");
            continue;
        }
        const std::size_t job = *worker.job;
        if (send(worker.socket, &job, sizeof job, MSG_NOSIGNAL) == sizeof job) return;
        bury(worker);
        fail(worker, "its worker is gone");
    }
    bury(worker);
}

void Workers::finish(Worker& worker, Outcome outcome)
{
    finished_[*worker.job] = {std::move(outcome), secondsSince(worker.begun)};
    worker.job.reset();
    ++count_;
}

void Workers::fail(Worker& worker, const char* why)
{
    Outcome outcome;
    outcome.fault = why;
    finish(worker, std::move(outcome));
}

void Workers::hear(Worker& worker)
{
    std::string message(longestMessage, '\0');
    const ssize_t size = recv(worker.socket, message.data(), message.size(), 0);
    if (size >= 2) {
        finish(worker, outcomeOf(std::string_view(message).substr(0, static_cast<std::size_t>(size))));
    } else {
        bury(worker);
        fail(worker, "the program broke down on it");
    }
    give(worker);
}

bool Workers::wait()
{
    std::vector<pollfd> waiting;
    for (const Worker& worker : workers_) {
        if (worker.job) waiting.push_back({worker.socket, POLLIN, 0});
    }
    if (waiting.empty()) return false;
    poll(waiting.data(), waiting.size(), -1);
    for (const pollfd& one : waiting) {
        if (one.revents == 0) continue;
        const auto worker = std::ranges::find(workers_, one.fd, &Worker::socket);
        if (worker != workers_.end() && worker->job) hear(*worker);
    }
    return true;
}

std::string paddedNumber(double seconds)
{
    constexpr std::size_t width = 8;
    std::string text = formatNumber(seconds, NumberFormat::thousandths);
    if (text.size() < width) text.insert(0, width - text.size(), ' ');
    return text + " s  ";
}

// One line of what there is to say.
std::string saidOf(const Outcome& outcome)
{
    std::string said;
    for (const std::string& remark : outcome.remarks) said += "  " + remark;
    if (outcome.fault) said += "  " + *outcome.fault;
    return said;
}

std::string lineOf(const Job& job, const Finished& one)
{
    const char* state = one.outcome.leftOut ? "in part  " : "whole    ";
    if (one.outcome.fault) state = "failed   ";
    return state + paddedNumber(one.seconds) + job.named + saidOf(one.outcome) + "\n";
}

std::string numbered(std::ptrdiff_t count, const char* of)
{
    return withThousands(count) + of;
}

} // namespace

std::vector<Finished> convertWithWorkers(const std::vector<Job>& jobs, int workers, const Work& work,
                                         const std::function<void(std::size_t count)>& done)
{
    Workers all(jobs, work);
    all.start(workers);
    while (all.wait()) done(all.count());
    return all.take();
}

std::string tableOf(const std::vector<Job>& jobs, const std::vector<Finished>& finished, double seconds)
{
    std::string table;
    for (std::size_t i = 0; i < jobs.size(); ++i) table += lineOf(jobs[i], finished[i]);
    const auto failed =
        std::ranges::count_if(finished, [](const Finished& one) { return !!one.outcome.fault; });
    const auto inPart = std::ranges::count_if(
        finished, [](const Finished& one) { return one.outcome.leftOut && !one.outcome.fault; });
    table += numbered(std::ssize(jobs), jobs.size() == 1 ? " file: " : " files: ");
    table += numbered(std::ssize(jobs) - failed - inPart, " whole, ") + numbered(inPart, " in part, ");
    return table + numbered(failed, " failed, in ") + formatNumber(seconds, NumberFormat::thousandths) +
           " s\n";
}

} // namespace mirtane::convert
