#include "source_edit/apply.h"

#include "source_edit/container_text.h"

#include <algorithm> // std::sort
#include <cstdint>   // std::uint8_t
#include <utility>   // std::move

namespace specloom::source_edit {
namespace {

/// How much of the text is given up for the edits.
enum class Effort : std::uint8_t {
    Text,       ///< only containers whose text cannot take them
    Containers, ///< all that are edited
    Document    ///< all
};

/// The first one. A single byte is found faster than one of two, and compact texts are one long line.
[[nodiscard]] std::string lineEndOf(std::string_view text) {
    const std::size_t feed = text.find('\n');
    const std::size_t carriageReturn = text.substr(0, feed).find('\r');
    if (carriageReturn == std::string_view::npos)
        return "\n";
    return feed == carriageReturn + 1 ? "\r\n" : "\r";
}

class Attempt {
  public:
    Attempt(std::string_view text, jv::DocumentFormat format, const Edits& edits)
        : around_{text, format, lineEndOf(text)}, edits_(edits) {}

    /// False when the outcome is not what it should be.
    [[nodiscard]] bool run(Effort effort, const PositionSink& moved) {
        result_ = {};
        Replacements replacements(around_.text);
        if (!(effort == Effort::Document ? renderDocument(replacements) : edit(effort, replacements)))
            return false;
        // What is rendered anew must not undo what somebody did to the text meanwhile.
        if (!result_.renderedAnew.empty() && !isUnchanged())
            return false;
        result_.text = replacements.wholeText();
        result_.changes = replacements.changes();
        return readsAsIntended(result_.text, around_.format, edits_, moved);
    }
    [[nodiscard]] EditedText takeResult() { return std::move(result_); }

  private:
    /// Whether the text is still the one that the source was read from.
    [[nodiscard]] bool isUnchanged() const {
        return readsAsIntended(around_.text, around_.format, Edits(edits_.source()), {});
    }

    bool edit(Effort effort, Replacements& replacements) {
        std::vector<const EditedContainer*> changed = edits_.changed();
        std::vector<const jv::JV*> values;
        values.reserve(changed.size());
        for (const EditedContainer* container : changed)
            values.push_back(container->container);
        const Layouts layouts = findLayouts(around_.text, around_.format, values);
        if (layouts.size() != changed.size())
            return false;
        // Inner ones first: those around them take over what became of them.
        std::sort(changed.begin(), changed.end(), [&](const EditedContainer* a, const EditedContainer* b) {
            return layouts.at(a->container).whole.begin > layouts.at(b->container).whole.begin;
        });
        for (const EditedContainer* container : changed) {
            const Layout& layout = layouts.at(container->container);
            if (effort == Effort::Text && editContainer(around_, edits_, *container, layout, replacements))
                ++result_.editedContainers;
            else if (around_.format == jv::DocumentFormat::Json)
                return false; // all that JSON can be takes edits: this is another text
            else
                render(*container, layout, replacements);
        }
        return true;
    }

    void render(const EditedContainer& container, const Layout& layout, Replacements& replacements) {
        renderContainer(around_, edits_, container, layout, replacements);
        result_.renderedAnew.push_back(container.container->pointer());
    }

    bool renderDocument(Replacements& replacements) {
        EditedContainer root;
        root.container = edits_.source().root();
        const Layouts layouts = findLayouts(around_.text, around_.format, {&root.container, 1});
        if (layouts.empty() || around_.format == jv::DocumentFormat::Json)
            return false;
        render(root, layouts.begin()->second, replacements);
        return true;
    }

    TextAround around_;
    const Edits& edits_;
    EditedText result_;
};

} // namespace

std::optional<EditedText> applyEdits(std::string_view text, jv::DocumentFormat format, const Edits& edits,
                                     const PositionSink& moved) {
    Attempt attempt(text, format, edits);
    for (const Effort effort : {Effort::Text, Effort::Containers, Effort::Document})
        if (attempt.run(effort, moved))
            return attempt.takeResult();
    return std::nullopt;
}

} // namespace specloom::source_edit
