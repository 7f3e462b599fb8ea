#pragma once

// Programs that work the system from outside include the field model from here.
#include "model/FrmPadrao.h"
