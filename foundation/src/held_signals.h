#pragma once

#include <csignal> // sigset_t, pthread_sigmask

namespace specloom {

/// As long as it lives, SIGTERM, SIGINT, SIGHUP and SIGQUIT wait. One that came meanwhile takes effect at its
/// end.
class HeldSignals {
  public:
    HeldSignals() {
        sigset_t signals;
        sigemptyset(&signals);
        for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGQUIT})
            sigaddset(&signals, signal);
        pthread_sigmask(SIG_BLOCK, &signals, &former_);
    }
    ~HeldSignals() { pthread_sigmask(SIG_SETMASK, &former_, nullptr); }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

  private:
    sigset_t former_;
};

} // namespace specloom
