#include "solvers/watch/watch.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <iostream>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace vantore::watch {

namespace {

using Clock = std::chrono::steady_clock;
using Length = std::uint64_t; // in front of each message

[[noreturn]] void fail() {
    throw std::system_error(errno, std::generic_category());
}

/// An open file, closed when it goes.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {
        if (number < 0) fail();
    }
    ~Descriptor() { close(number_); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    operator int() const { return number_; } // NOLINT(google-explicit-constructor)

  private:
    int number_;
};

sigset_t requests() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGTERM);
    return set;
}

/// Ctrl+C and SIGTERM wait to be read for as long as it lives. In the child they wait for ever: when to stop
/// is for the parent to say.
class HeldRequests {
  public:
    HeldRequests() {
        const sigset_t set = requests();
        sigprocmask(SIG_BLOCK, &set, &before_);
    }
    ~HeldRequests() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
    HeldRequests(const HeldRequests&) = delete;
    HeldRequests& operator=(const HeldRequests&) = delete;

  private:
    sigset_t before_{};
};

void writeAll(int file, const std::string& bytes) {
    std::size_t written = 0;
    while (written < bytes.size()) {
        const ssize_t count = write(file, bytes.data() + written, bytes.size() - written);
        if (count > 0) written += static_cast<std::size_t>(count);
        if (count < 0 && errno != EINTR) fail();
    }
}

[[noreturn]] void searchInChild(const std::function<void(const Tell&)>& search, pid_t parent, int toParent) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) _exit(EXIT_FAILURE);
    try {
        search([toParent](const std::string& message) {
            const Length length = message.size();
            std::string frame(sizeof length, '\0');
            std::memcpy(frame.data(), &length, sizeof length);
            writeAll(toParent, frame + message);
        });
        _exit(EXIT_SUCCESS);
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
    } catch (...) {
        std::cerr << "unknown failure" << std::endl;
    }
    _exit(EXIT_FAILURE);
}

/// Puts the bytes of the pipe together to messages.
class Messages {
  public:
    explicit Messages(const std::function<void(const std::string&)>& hear) : hear_(hear) {}

    /// Takes what the pipe has; false at its end.
    bool take(int pipe) {
        std::array<char, 1U << 16U> block{};
        const ssize_t count = read(pipe, block.data(), block.size());
        if (count < 0 && errno == EINTR) return true;
        if (count <= 0) return false;
        bytes_.append(block.data(), static_cast<std::size_t>(count));
        hearWholeOnes();
        return true;
    }

  private:
    void hearWholeOnes() {
        Length length = 0;
        std::size_t at = 0;
        while (bytes_.size() - at >= sizeof length) {
            std::memcpy(&length, bytes_.data() + at, sizeof length);
            if (bytes_.size() - at - sizeof length < length) break;
            hear_(bytes_.substr(at + sizeof length, length));
            at += sizeof length + length;
        }
        bytes_.erase(0, at);
    }

    const std::function<void(const std::string&)>& hear_;
    std::string bytes_;
};

int millisecondsUntil(Clock::time_point end) {
    const std::chrono::duration<double, std::milli> left = end - Clock::now();
    constexpr double longest = 1E+06;
    return static_cast<int>(std::ceil(std::min(std::max(left.count(), 0.0), longest)));
}

/// Hears the search until it ends, its time is over or a request to stop comes.
End hearUntilEnd(int pipe, int stopping, Clock::time_point timeLimit, Messages& messages) {
    while (true) {
        const int wait = millisecondsUntil(timeLimit);
        if (wait == 0) return End::TimeLimit;
        std::array<pollfd, 2> files = {pollfd{pipe, POLLIN, 0}, pollfd{stopping, POLLIN, 0}};
        if (poll(files.data(), files.size(), wait) < 0) continue;
        if ((files[1].revents & POLLIN) != 0) {
            signalfd_siginfo taken{};
            if (read(stopping, &taken, sizeof taken) > 0) return End::Interrupted;
        }
        if (files[0].revents != 0 && !messages.take(pipe)) return End::Done;
    }
}

/// The child's wait status, once it has ended.
int awaited(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

} // namespace

End run(const std::function<void(const Tell&)>& search, double seconds,
        const std::function<void(const std::string&)>& hear) {
    const HeldRequests held;
    const sigset_t set = requests();
    const Descriptor stopping(signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK));
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) fail();
    const Descriptor fromChild(ends[0]);
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child == 0) searchInChild(search, parent, ends[1]);
    close(ends[1]);
    if (child < 0) fail();
    Messages messages(hear);
    const auto limit =
        Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
    const End end = hearUntilEnd(fromChild, stopping, limit, messages);
    if (end != End::Done) kill(child, SIGKILL);
    while (messages.take(fromChild)) {
    } // what was told before the end
    return awaited(child) == EXIT_SUCCESS || end != End::Done ? end : End::Failed;
}

void begin() {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // Whoever started the program may have had these signals ignored, and ignored ones never arrive.
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    const sigset_t set = requests();
    sigprocmask(SIG_BLOCK, &set, nullptr);
}

} // namespace vantore::watch
