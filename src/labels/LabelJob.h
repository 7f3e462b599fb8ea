#pragma once

// Programs that work the system from outside include the job set-up from here.
#include "labels/JobSetup.h"
