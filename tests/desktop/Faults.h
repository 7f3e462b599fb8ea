#pragma once

#include "base/Failure.h"
#include "desktop/QtText.h"

#include <QScopeGuard>
#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <sys/resource.h>

namespace etiquetas::test {

/// While the result lives, no file can grow beyond so many bytes, as on a disk that is full.
[[nodiscard]] inline auto smallDisk(rlim_t bytes) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{bytes, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    return qScopeGuard([before, handler = std::signal(SIGXFSZ, SIG_IGN)] {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handler);
    });
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
