#include "openapi_lint/rules/spell_check.h"

#include "foundation/file_system.h"
#include "foundation/message.h"
#include "foundation/strings.h"
#include "foundation/text_tables.h"
#include "foundation/utf8.h"
#include "markdown/parser.h"
#include "openapi_lint/dictionary.h"
#include "openapi_lint/rule_options.h"
#include "openapi_lint/texts_handler.h"
#include "openapi_lint/words.h"

#include <algorithm> // std::find, std::ranges::find
#include <array>     // std::array
#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* wordUnknown = "Possible spelling mistake: '{}'";

constexpr const char* spellingOptionsNoObject = "Options must be an object";
constexpr const char* optionUnknown = "Unknown option: {}";
constexpr const char* optionNoString = "Option '{}' must be a string";
constexpr const char* optionNoStrings = "Option '{}' must be an array of strings";
constexpr const char* filesNotPaired = "Options 'affix' and 'dictionary' must be given together";
constexpr const char* wordFileUnreadable = "Word file cannot be read: {}";

using Words = TextSet;

/// The members of the options, checked for their kinds.
class SpellCheckOptions {
  public:
    explicit SpellCheckOptions(const jv::JV& options) : options_(options) {
        constexpr std::array<std::string_view, 4> known = {"affix", "dictionary", "words", "word_files"};
        if (!options.isObject())
            fail(spellingOptionsNoObject, "");
        for (const jv::Member member : options.members())
            if (std::find(known.begin(), known.end(), member.key) == known.end())
                fail(optionUnknown, member.key);
    }

    [[nodiscard]] std::optional<std::string> text(std::string_view name) const {
        const jv::JV* value = options_.get(name);
        if (value == nullptr)
            return std::nullopt;
        if (!value->isString())
            fail(optionNoString, name);
        return std::string(value->text());
    }
    [[nodiscard]] std::vector<std::string_view> texts(std::string_view name) const {
        std::vector<std::string_view> texts;
        const jv::JV* value = options_.get(name);
        if (value == nullptr)
            return texts;
        if (!value->isArray())
            fail(optionNoStrings, name);
        for (const jv::JV* element : value->elements()) {
            if (!element->isString())
                fail(optionNoStrings, name);
            texts.push_back(element->text());
        }
        return texts;
    }

    [[noreturn]] static void fail(MessageFormat<std::string_view> message, std::string_view argument) {
        throw RuleConfigurationError(SpellCheck::ruleId, formatMessage(message, argument));
    }

  private:
    const jv::JV& options_;
};

/// Accepted words are cut up as texts are, so that an entry "re-queue" is met again.
void accept(std::string_view text, Words& words) {
    for (const Word& word : wordsOf(text))
        for (const std::string_view part : word.parts)
            words.emplace(part);
}

Words readAcceptedWords(const SpellCheckOptions& options, const FileSystem& files) {
    Words words;
    for (const std::string_view word : options.texts("words"))
        accept(word, words);
    for (const std::string_view path : options.texts("word_files")) {
        try {
            const std::string content = files.readFile(path);
            static_cast<void>(utf8Length(content)); // throws unless it is UTF-8
            accept(content, words);
        } catch (const std::exception&) {
            SpellCheckOptions::fail(wordFileUnreadable, path);
        }
    }
    return words;
}

std::unique_ptr<Dictionary> readDictionary(const SpellCheckOptions& options, const FileSystem& files) {
    const std::optional<std::string> affix = options.text("affix");
    const std::optional<std::string> dictionary = options.text("dictionary");
    if (affix.has_value() != dictionary.has_value())
        SpellCheckOptions::fail(filesNotPaired, "");
    if (!affix)
        return nullptr;
    try {
        return std::make_unique<Dictionary>(files, *affix, *dictionary);
    } catch (const std::runtime_error& error) {
        throw RuleConfigurationError(SpellCheck::ruleId, Message(error));
    }
}

/// The named character references that do not belong to words. What is spelt with any other is taken for a
/// name.
constexpr std::array<std::string_view, 24> referencesBetweenWords = {
    "&Tab;",   "&NewLine;", "&colon;", "&plus;",   "&period;", "&sol;",   "&amp;",    "&lt;",
    "&gt;",    "&quot;",    "&apos;",  "&lowbar;", "&nbsp;",   "&ensp;",  "&emsp;",   "&thinsp;",
    "&ndash;", "&mdash;",   "&lsquo;", "&rsquo;",  "&ldquo;",  "&rdquo;", "&hellip;", "&bull;",
};

bool standsBetweenWords(std::string_view reference) {
    return reference.starts_with("&#") ||
           std::ranges::find(referencesBetweenWords, reference) != referencesBetweenWords.end();
}

/// The words of a text without its code, HTML and destinations. U+FFFD stands for what is left out, so that
/// the end of "`id`s" is no word of its own.
class Prose final : public markdown::Handler {
  public:
    void text(std::string_view piece) override { prose_ += piece; }
    void characterReference(std::string_view written, std::string_view character) override {
        prose_ += standsBetweenWords(written) ? character : "\uFFFD";
    }
    void lineEnd() override { prose_ += '\n'; }
    void openSpan(markdown::SpanKind kind) override {
        if (kind == markdown::SpanKind::Code)
            prose_ += "\uFFFD";
    }
    void html(std::string_view /*piece*/) override { prose_ += ' '; }
    void link(const markdown::Link& link) override { titles_.append(link.title).append("\n"); }
    /// The titles of links stand behind the rest: they must not come between parts of a word.
    [[nodiscard]] std::string take() { return std::move(prose_.append("\n").append(titles_)); }

  private:
    std::string prose_;
    std::string titles_;
};

/// Titles and summaries are plain text, but authors put code in backticks there too.
std::string proseOf(const openapi::NodeTexts& texts) {
    Prose prose;
    for (const auto& text : {texts.title, texts.summary, texts.description})
        if (text)
            markdown::parse(*text, prose);
    return prose.take();
}

class SpellCheckHandler final : public TextsHandler {
  public:
    SpellCheckHandler(const Rule& rule, LintContext& context, Dictionary& dictionary, const Words& accepted)
        : TextsHandler(rule, context), dictionary_(dictionary), accepted_(accepted) {}

  protected:
    void visitTexts(const openapi::Node& node, const openapi::NodeTexts& texts) override {
        const std::string prose = proseOf(texts);
        TextViewSet reported;
        for (const Word& word : wordsOf(prose)) {
            if (word.isWhole && dictionary_.knows(word.text)) // it may know "re-use" and not "re"
                continue;
            for (const std::string_view part : word.parts)
                if (!isAccepted(part) && !dictionary_.knows(part) && reported.insert(part).second)
                    report(fmt::format(wordUnknown, part), node);
        }
    }

  private:
    /// Also in the genitive, and with a capital at the start of a sentence.
    [[nodiscard]] bool isAccepted(std::string_view word) const {
        if (accepted_.empty())
            return false;
        for (const std::string_view genitive : {"'s", "\u2019s"})
            if (word.ends_with(genitive))
                return isAccepted(word.substr(0, word.size() - genitive.size()));
        return accepted_.contains(std::string(word)) || accepted_.contains(withSmallInitial(word));
    }

    Dictionary& dictionary_;
    const Words& accepted_;
};

} // namespace

SpellCheck::SpellCheck(Severity severity) : Rule(ruleId, severity) {}
SpellCheck::~SpellCheck() = default;

void SpellCheck::configure(const jv::JV* options) {
    const SpellCheckOptions given(requireOptions(options, ruleId));
    const LocalFileSystem files;
    TextSet words = readAcceptedWords(given, files);
    dictionary_ = readDictionary(given, files);
    acceptedWords_ = std::move(words);
}

void SpellCheck::check(LintContext& context) {
    if (dictionary_ == nullptr)
        return;
    SpellCheckHandler handler(*this, context, *dictionary_, acceptedWords_);
    context.walk(handler);
}

} // namespace specloom::openapi_lint
