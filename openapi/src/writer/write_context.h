#pragma once

#include "openapi/writer.h"

namespace specloom::openapi {

/// What all objects of one write share.
struct WriteContext {
    jv::JVDocument& output;
    const Writer::NodeKeyOrder& keyOrderOfNode;   ///< may be empty
    const Writer::FieldKeyOrder& keyOrderOfField; ///< may be empty
    const jv::JVDocument* valueSource;            ///< knows the key orders of kept values; may be null
    bool isVersion30;
    bool isVersion31;
    bool constFromEnum;
    bool booleanSchemas;
};

} // namespace specloom::openapi
