#include "support/placeholder.h"
