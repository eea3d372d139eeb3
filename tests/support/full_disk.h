// A disk that is full after so many bytes of each file, as far as this process is concerned.
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace trabeon::test {

class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
};

}  // namespace trabeon::test
