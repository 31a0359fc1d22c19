#include "platform/data/sql/Translation.h"
