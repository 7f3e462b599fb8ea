#pragma once

// Stand-ins for the machine, and what tests put on them.
#include "support/Failures.h"
#include "support/FakeMachine.h"
#include "support/OrderLines.h"
#include "support/Workbenches.h"
