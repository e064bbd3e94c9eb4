#include "code_morph/node.h"

namespace specloom::code_morph::base {

void Node::write(std::string& /*out*/) const {}

} // namespace specloom::code_morph::base
