#include "egret/check.h"
