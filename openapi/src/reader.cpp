#include "openapi/reader.h"
