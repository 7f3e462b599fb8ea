#pragma once

#include "base/Failure.h"
#include "desktop/machine/QtText.h"

#include <QString>
#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <sys/resource.h>

namespace etiquetas::test {

using namespace Qt::StringLiterals;

/// Does a deed that throws nothing while no file can grow beyond a kilobyte, as on a full disk.
inline void onFullDisk(const std::function<void()>& deed) {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{1000, limit.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    deed();
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// The deed must fail with this number, and tell what it is about.
inline void expectFailure(std::int32_t number, TextView about, const std::function<void()>& deed) {
    try {
        deed();
        ADD_FAILURE() << "went through: " << toQString(about).toStdString();
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), number);
        EXPECT_NE(failure.description().find(about), Text::npos);
    }
}

} // namespace etiquetas::test
