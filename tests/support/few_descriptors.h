#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>

/// While one exists, this process may open descriptors below a number only.
class FewDescriptors {
public:
    explicit FewDescriptors(rlim_t count) {
        EXPECT_EQ(0, getrlimit(RLIMIT_NOFILE, &before_));
        const rlimit few = {count, before_.rlim_max};
        EXPECT_EQ(0, setrlimit(RLIMIT_NOFILE, &few));
    }
    ~FewDescriptors() { EXPECT_EQ(0, setrlimit(RLIMIT_NOFILE, &before_)); }

private:
    rlimit before_{};
};
