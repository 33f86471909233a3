#include "core/modMain.h"
