#include "services/StopSignals.h"

#include <csignal>

namespace ostrand {

namespace {

// A signal handler reaches nothing but static storage.
volatile std::sig_atomic_t received_signal = 0;

void Note(int signal) {
    received_signal = signal;
}

} // namespace

#ifdef Q_OS_UNIX

StopSignals::StopSignals() {
    received_signal = 0;
    struct sigaction action = {};
    action.sa_handler = Note;
    action.sa_flags = int(SA_RESETHAND); // and no SA_RESTART: a read that waits must return
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

void LetWritesFail() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

#else

StopSignals::StopSignals() {
    received_signal = 0;
    std::signal(SIGINT, Note);
    std::signal(SIGTERM, Note);
}

void LetWritesFail() {}

#endif

StopSignals::~StopSignals() {
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

int StopSignals::Received() {
    return received_signal;
}

} // namespace ostrand
