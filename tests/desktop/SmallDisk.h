#pragma once

#include <csignal>
#include <sys/resource.h>

namespace etiquetas::test {

/// While it lives, no file can grow beyond so many bytes, as on a disk that is full.
class SmallDisk {
  public:
    explicit SmallDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

  private:
    rlimit before_{};
    void (*signal_)(int);
};

} // namespace etiquetas::test
