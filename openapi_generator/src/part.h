#pragma once

namespace specloom::openapi_generator {

/// A unit of what a plugin generates: a file, or what goes into one.
class Part {
  public:
    Part() = default;
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;
    virtual ~Part() = default;

    /// Takes what it needs from the document.
    virtual void collectData() {}
    /// Fills its file in memory. Nothing gets to the disk.
    virtual void generateCode() = 0;
};

} // namespace specloom::openapi_generator
