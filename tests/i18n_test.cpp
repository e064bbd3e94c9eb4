// `specloom i18n` as the page of the manual shows it.

#include "manual.h"
#include "test_support/corpora.h"

#include <gtest/gtest.h>

namespace specloom::tests {
namespace {

TEST(I18N, doesWhatTheManualShows) {
    const Workspace workspace;
    workspace.write("examples/bookshop-3.1.yaml",
                    test_support::fileBytes(SPECLOOM_SOURCE_DIR "/examples/bookshop-3.1.yaml"));
    EXPECT_GT(expectManualShows(workspace, "docs/translating.md"), 4u);
}

} // namespace
} // namespace specloom::tests
