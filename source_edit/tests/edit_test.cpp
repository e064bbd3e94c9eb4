// Edits in texts, case by case: of the folder golden/, CASE.before.EXT becomes CASE.after.EXT by the edits of
// CASE.edits.yaml, a list of
//
//   {at: POINTER, set: {KEY: VALUE, ...}}         members of an object
//   {at: POINTER, remove: KEY}
//   {at: POINTER, rename: {KEY: KEY, ...}}
//   {at: POINTER, order: [KEY, ...]}
//   {at: POINTER, arrange: [PLACE, ...]}          elements of an array, by their places
//   {at: POINTER, insert: VALUE, place: PLACE}
//   {anew: POINTER}                               the value there is rendered anew
//
// Carriage returns and byte-order marks stand in the files as they are. With SPECLOOM_UPDATE_GOLDEN set the
// files of what becomes are written anew, for review.

#include "source_edit/apply.h"
#include "test_support/corpora.h"
#include "test_support/golden.h"

#include <algorithm>   // std::sort
#include <filesystem>  // std::filesystem
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::source_edit {
namespace {

namespace fs = std::filesystem;
using jv::JV;

const fs::path goldenFolder = fs::path(SPECLOOM_TEST_DIR) / "tests/golden";

std::vector<fs::path> editFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(goldenFolder))
        if (entry.path().string().ends_with(".edits.yaml"))
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::unique_ptr<jv::JVDocument> parsed(std::string_view text, jv::DocumentFormat format) {
    jv::LoadOptions options;
    options.format = format;
    return jv::parseDocument(text, options);
}

std::size_t placeOf(const JV& number) {
    return static_cast<std::size_t>(std::stoul(number.number().toString()));
}

/// One entry of a list of edits.
void addEdit(const jv::JVDocument& source, const JV& entry, Edits& edits) {
    const JV& at = *source.lookup(entry.getRequiredString("at")->text());
    if (const JV* members = entry.get("set"))
        for (const jv::Member member : members->members())
            edits.setMember(at, member.key, jv::JVDocument::clone(*member.value));
    if (const JV* key = entry.get("remove"))
        edits.removeMember(at, key->text());
    if (const JV* keys = entry.get("rename")) {
        std::vector<Edits::Renaming> renamings;
        for (const jv::Member member : keys->members())
            renamings.emplace_back(member.key, member.value->text());
        edits.renameMembers(at, renamings);
    }
    if (const JV* keys = entry.get("order")) {
        std::vector<std::string_view> order;
        for (const JV* key : keys->elements())
            order.push_back(key->text());
        edits.orderMembers(at, order);
    }
    if (const JV* places = entry.get("arrange")) {
        std::vector<const JV*> elements;
        for (const JV* place : places->elements())
            elements.push_back(at.elements()[placeOf(*place)]);
        edits.arrangeElements(at, elements);
    }
    if (const JV* value = entry.get("insert"))
        edits.insertElement(at, placeOf(*entry.get("place")), jv::JVDocument::clone(*value));
}

TEST(Edits, comeIntoTexts) {
    std::size_t count = 0;
    for (const fs::path& path : editFiles()) {
        std::string stem = path.string();
        stem.erase(stem.size() - std::string_view(".edits.yaml").size());
        const bool isJson = fs::exists(stem + ".before.json");
        const std::string extension = isJson ? ".json" : ".yaml";
        const auto format = isJson ? jv::DocumentFormat::Json : jv::DocumentFormat::Yaml;
        SCOPED_TRACE(stem);
        const std::string before = test_support::fileBytes(stem + ".before" + extension);
        const auto source = parsed(before, format);
        const auto list = parsed(test_support::fileBytes(path), jv::DocumentFormat::Yaml);
        Edits edits(*source);
        std::vector<std::string> anew;
        for (const JV* entry : list->root()->elements()) {
            if (const JV* pointer = entry->get("anew"))
                anew.emplace_back(pointer->text());
            else
                addEdit(*source, *entry, edits);
        }
        const std::optional<EditedText> edited = applyEdits(before, format, edits);
        ASSERT_TRUE(edited);
        EXPECT_EQ(edited->renderedAnew, anew);
        test_support::expectGolden(edited->text, stem + ".after" + extension);
        ++count;
    }
    EXPECT_GT(count, 20u);
}

TEST(Edits, areNoneWhenAllIsAsItWas) {
    const auto source = parsed(R"({"a": [1, 2], "b": "x"})", jv::DocumentFormat::Json);
    Edits edits(*source);
    const JV& array = *source->lookup("/a");
    edits.setMember(*source->root(), "b", std::make_unique<JV>("x"));
    edits.arrangeElements(array, array.elements());
    EXPECT_TRUE(edits.empty());
    edits.insertElement(array, 9, std::make_unique<JV>(3));
    EXPECT_FALSE(edits.empty());
}

/// The text on the disk may be another one by the time it is to be edited.
TEST(Edits, stayOutOfOtherTexts) {
    for (const auto format : {jv::DocumentFormat::Json, jv::DocumentFormat::Yaml}) {
        const auto source = parsed(R"({"info": {"version": "1"}, "x": [1]})", format);
        Edits edits(*source);
        edits.setMember(*source->lookup("/info"), "version", std::make_unique<JV>("2"));
        for (const char* text : {"", "{", "[", "{}", R"({"info": {"version": "1"}, "x": [2]})", "]]]]", "{\"",
                                 R"({"x": [1], "info": {"version": "1"}})"})
            EXPECT_FALSE(applyEdits(text, format, edits)) << text;
    }
}

} // namespace
} // namespace specloom::source_edit
