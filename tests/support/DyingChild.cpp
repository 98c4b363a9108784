#include "support/DyingChild.h"

#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace ostrand::test {

bool DiesWithin(std::chrono::microseconds time, const std::function<void()> &job) {
    const pid_t child = ::fork();
    if (child == 0) {
        try {
            job();
        } catch (...) {
            ::_exit(1);
        }
        ::_exit(0);
    }
    const auto end = std::chrono::steady_clock::now() + time;
    int status = 0;
    while (::waitpid(child, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() >= end) {
            ::kill(child, SIGKILL);
            ::waitpid(child, &status, 0);
            break;
        }
        std::this_thread::sleep_for(std::chrono::microseconds(100));
    }
    if (WIFEXITED(status) && WEXITSTATUS(status) != 0) {
        throw std::runtime_error("the job of the child failed");
    }
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

void Die() {
    ::kill(::getpid(), SIGKILL);
    std::abort();
}

} // namespace ostrand::test
