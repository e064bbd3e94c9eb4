#include "jv/deser.h"

#include "foundation/file_system.h"
#include "foundation/input.h"
#include "foundation/message.h"
#include "foundation/output_file.h"
#include "foundation/strings.h"
#include "foundation/unreachable.h"
#include "jv/json_reader.h"
#include "jv/json_writer.h"
#include "jv/yaml_reader.h"
#include "jv/yaml_writer.h"

#include <exception> // std::exception
#include <istream>   // std::istream
#include <ostream>   // std::ostream
#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <utility>   // std::move, std::pair
#include <vector>    // std::vector

namespace specloom::jv {

namespace {

constexpr const char* cannotOpen = "Cannot open file: {}";
constexpr const char* failedToOpen = "Failed to open file: {}";
constexpr const char* unsupportedFormat = "Unsupported file format: {}";

[[nodiscard]] std::runtime_error pathError(MessageFormat<std::string_view> message, std::string_view path) {
    return std::runtime_error(formatMessage(message, path));
}

[[nodiscard]] DocumentFormat requiredFormat(std::optional<DocumentFormat> format, std::string_view path) {
    if (!format)
        format = formatFromPath(path);
    if (!format)
        throw pathError(unsupportedFormat, path);
    return *format;
}

/// Replaces references by what `options.refLoader` returns for them.
class RefInliner {
  public:
    explicit RefInliner(const LoadOptions& options) : options_(options) {}

    void run(JV& root) {
        collect(root);
        for (auto& [object, document] : loaded_) {
            object->remove("$ref");
            JVDocument::assign(*document->root(), *object);
        }
    }

  private:
    /// All references are loaded before the first is replaced.
    void collect(JV& root) {
        std::vector<JV*> open{&root};
        while (!open.empty()) {
            JV* value = open.back();
            open.pop_back();
            if (value->isArray()) {
                const auto elements = value->elements();
                open.insert(open.end(), elements.begin(), elements.end());
            } else if (value->isObject() && value->size() == 1 && value->has("$ref")) {
                load(*value);
            } else if (value->isObject()) {
                for (const Member member : value->members())
                    open.push_back(value->get(member.key));
            }
        }
    }

    void load(JV& object) {
        auto document = options_.refLoader(object.getRequiredString("$ref")->text());
        if (document != nullptr && document->root() != nullptr)
            loaded_.emplace_back(&object, std::move(document));
    }

    const LoadOptions& options_;
    std::vector<std::pair<JV*, std::unique_ptr<JVDocument>>> loaded_;
};

[[nodiscard]] std::unique_ptr<JVDocument> inlined(std::unique_ptr<JVDocument> document,
                                                  const LoadOptions& options) {
    if (options.refLoader)
        RefInliner(options).run(*document->root());
    return document;
}

} // namespace

// ---- formats

std::optional<DocumentFormat> formatFromPath(std::string_view path) {
    std::string_view name = path.substr(path.rfind('/') + 1);
    name = name.substr(0, name.find(':'));
    const std::size_t dot = name.rfind('.');
    // A name that only starts with a dot is a hidden file, not an extension.
    if (dot == std::string_view::npos || dot == 0)
        return std::nullopt;
    const std::string extension = toLowerCase(name.substr(dot));
    if (extension == ".json")
        return DocumentFormat::Json;
    if (extension == ".yaml" || extension == ".yml")
        return DocumentFormat::Yaml;
    return std::nullopt;
}

std::string_view extensionOf(DocumentFormat format) {
    switch (format) {
    case DocumentFormat::Json:
        return ".json";
    case DocumentFormat::Yaml:
        return ".yaml";
    }
    SPECLOOM_UNREACHABLE("format of a document");
}

// ---- reading

LoadedDocument loadDocument(const FileSystem& files, std::string_view path, const LoadOptions& options) {
    const std::unique_ptr<Input> file = files.open(path);
    if (file == nullptr)
        throw pathError(cannotOpen, path);
    LoadOptions known = options;
    known.format = requiredFormat(options.format, path);
    try {
        LoadedDocument loaded{readDocument(file->stream(), known), *known.format};
        loaded.document->setSourcePath(std::string(path));
        return loaded;
    } catch (const std::exception&) {
        file->requireBounds();
        throw;
    }
}

LoadedDocument loadDocument(std::string_view path, const LoadOptions& options) {
    return loadDocument(LocalFileSystem(), path, options);
}

std::unique_ptr<JVDocument> parseDocument(std::string_view text, const LoadOptions& options) {
    switch (options.format.value()) {
    case DocumentFormat::Json:
        return inlined(parseJSON(text), options);
    case DocumentFormat::Yaml:
        return inlined(parseYAML(text), options);
    }
    SPECLOOM_UNREACHABLE("format of a document");
}

std::unique_ptr<JVDocument> readDocument(std::istream& stream, const LoadOptions& options) {
    switch (options.format.value()) {
    case DocumentFormat::Json:
        return inlined(readJSON(stream), options);
    case DocumentFormat::Yaml:
        return inlined(readYAML(stream), options);
    }
    SPECLOOM_UNREACHABLE("format of a document");
}

// ---- writing

std::string documentToText(const JVDocument& document, const SaveOptions& options) {
    const auto render = [&](auto writer) {
        writer.setSorter(options.sorter);
        writer.setIndent(options.indent);
        writer.write(document);
        return std::move(writer).output();
    };
    switch (options.format.value()) {
    case DocumentFormat::Json:
        return render(JSONWriter());
    case DocumentFormat::Yaml:
        return render(YAMLWriter());
    }
    SPECLOOM_UNREACHABLE("format of a document");
}

std::string documentToText(const JVDocument& document, DocumentFormat format) {
    return documentToText(document, SaveOptions{format, 2, {}});
}

void writeDocument(const JVDocument& document, std::ostream& stream, const SaveOptions& options) {
    const std::string text = documentToText(document, options);
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
}

void saveDocument(const JVDocument& document, std::string_view path, const SaveOptions& options) {
    SaveOptions known = options;
    known.format = requiredFormat(options.format, path);
    const std::string text = documentToText(document, known);
    try {
        OutputFile(path).replace(text);
    } catch (const OpenForWritingError&) {
        throw pathError(failedToOpen, path);
    }
}

} // namespace specloom::jv
