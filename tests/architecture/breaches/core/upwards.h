#include "logs/frmLogEdit.h"
