#pragma once

#include "platform/Platform.h"
#include "support/FakeDesk.h"
#include "support/FakeFiles.h"
#include "support/FakePrinters.h"
#include "support/Journal.h"

namespace etiquetas::test {

/// A machine of fakes that share one journal.
struct FakePlatform : Journal, FakeDesk {
    FakePlatform() : FakeDesk(static_cast<Journal&>(*this)) {}

    FakeFiles files{*this};
    Pictures& pictures = files;
    FakePrinters printers{*this};

    Platform platform() {
        return {printers, printers, *this, files, files, *this, *this, *this, *this, *this};
    }
};

} // namespace etiquetas::test
