#include "views/symbol.h"
