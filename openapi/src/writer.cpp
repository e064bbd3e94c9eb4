#include "openapi/writer.h"
