#pragma once

#include <csignal>
#include <sys/resource.h>

namespace vantore::tests {

/// No file may grow beyond `bytes` while it lives: what a full disk is to a program.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
    void (*handler_)(int) = SIG_DFL;
};

} // namespace vantore::tests
