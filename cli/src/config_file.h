#pragma once

#include "configuration/config_file.h"

// Commands read the file behind --config; the plugins of generators, which must not know commands, share it.
namespace specloom::cli {

using configuration::ConfigFile;
using configuration::ConfigFileError;
using configuration::readConfigFile;

} // namespace specloom::cli
