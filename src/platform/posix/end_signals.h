#pragma once

namespace mirtane {

// The signals by which a program is asked to end: SIGTERM, SIGHUP, SIGINT. While this stands they do not end
// it at once, so that what is not saved can be kept before. There is one at a time.
class EndSignals {
  public:
    EndSignals();
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;
    EndSignals(EndSignals&&) = delete;
    EndSignals& operator=(EndSignals&&) = delete;

    // Becomes readable when a signal has come.
    int descriptor() const;
    // The signal that came, 0 if none has.
    static int came();
    // Ends the program as the signal would have.
    [[noreturn]] static void endBy(int signal);
};

} // namespace mirtane
