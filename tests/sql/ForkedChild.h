// A second process for tests of what processes do to each other.
#pragma once

#include <csignal>
#include <functional>

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ostrand::sql::testing {

/// Runs in a process of its own; the value that `body` returned, or -1 when the process died.
inline int InChild(const std::function<int()> &body) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(body());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// The same without the rights of the super-user, to whom no file is read-only.
inline int AsNobody(const std::function<int()> &body) {
    return InChild([&] {
        if (::geteuid() == 0) {
            constexpr uid_t kNobody = 65534;
            if (::setresgid(kNobody, kNobody, kNobody) != 0 || ::setresuid(kNobody, kNobody, kNobody) != 0) {
                return 99;
            }
        }
        return body();
    });
}

/// A process that does `start` and then only waits, until it is killed.
class WaitingChild {
public:
    explicit WaitingChild(const std::function<void()> &start) {
        int ends[2] = {};
        if (::pipe(ends) != 0) {
            return;
        }
        process_ = ::fork();
        if (process_ == 0) {
            start();
            const char ready = 'r';
            if (::write(ends[1], &ready, 1) != 1) {
                ::_exit(1);
            }
            while (true) {
                ::pause();
            }
        }
        char ready = 0;
        started_ = ::read(ends[0], &ready, 1) == 1;
        ::close(ends[0]);
        ::close(ends[1]);
    }
    ~WaitingChild() {
        Kill();
        Reap();
    }
    WaitingChild(const WaitingChild &) = delete;
    WaitingChild &operator=(const WaitingChild &) = delete;

    bool IsStarted() const { return started_; }
    pid_t Process() const { return process_; }

    /// Ends it without a word; until Reap it stays listed as a process that has ended.
    void Kill() const {
        if (process_ > 0) {
            ::kill(process_, SIGKILL);
            siginfo_t info = {};
            ::waitid(P_PID, id_t(process_), &info, WEXITED | WNOWAIT);
        }
    }
    void Reap() {
        if (process_ > 0) {
            ::waitpid(process_, nullptr, 0);
            process_ = 0;
        }
    }

private:
    pid_t process_ = 0;
    bool started_ = false;
};

} // namespace ostrand::sql::testing
