// A full disk: while it lives, no file of this process grows beyond so many bytes.
#pragma once

#include <csignal>
#include <sys/resource.h>

class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};
