// Objects against a plain model of them, over random edits: the storage of an object changes its shape with
// its size and its history, what can be seen of it must not.

#include "jv/json_reader.h"
#include "jv/jv_document.h"

#include <algorithm>   // std::ranges::find, std::ranges::shuffle
#include <map>         // std::map
#include <memory>      // std::unique_ptr
#include <random>      // std::mt19937
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

class Model {
  public:
    Model(std::mt19937& random, int keys, int initial) : random_(random), keys_(keys) {
        std::string text = "{";
        for (int i = 0; i < initial; ++i) {
            const std::string key = randomKey();
            text += (i == 0 ? "\"" : ",\"") + key + "\":" + std::to_string(i);
            values_[key] = std::to_string(i);
            order_.push_back(key);
        }
        document_ = parseJSON(text + "}");
    }

    void edit() {
        const std::string key = randomKey();
        JV& root = *document_->root();
        switch (random_() % 9) {
        case 0:
        case 1:
        case 2:
            root.setInteger(key, ++counter_);
            values_[key] = std::to_string(counter_);
            break;
        case 3:
        case 4:
            root.remove(key);
            values_.erase(key);
            break;
        case 5:
            document_->reindex();
            for (const auto& [name, value] : values_)
                ASSERT_EQ(document_->lookup("/" + name)->pointer(), "/" + name);
            break;
        case 6:
            setRandomOrder();
            break;
        case 7:
            document_->appendKey(&root, key);
            order_.push_back(key);
            break;
        case 8:
            forgetNowAndThen(root);
            break;
        }
    }

    void check() const {
        const JV& root = *document_->root();
        ASSERT_EQ(root.size(), values_.size());
        auto expected = values_.begin();
        for (const Member member : root.members()) {
            ASSERT_EQ(member.key, expected->first);
            ASSERT_EQ(member.value->number().toString(), expected->second);
            ++expected;
        }
        for (int i = 0; i < keys_; ++i)
            ASSERT_EQ(root.has(keyOf(i)), values_.contains(keyOf(i)));
        ASSERT_EQ(document_->keysOf(&root), std::vector<std::string_view>(order_.begin(), order_.end()));

        std::vector<std::string> ordered;
        for (const std::string& key : order_) {
            if (values_.contains(key) && std::ranges::find(ordered, key) == ordered.end())
                ordered.push_back(key);
        }
        for (const auto& [key, value] : values_) {
            if (std::ranges::find(order_, key) == order_.end())
                ordered.push_back(key);
        }
        std::vector<std::string> actual;
        document_->forEachOrdered(&root, [&](const Member& member) { actual.emplace_back(member.key); });
        ASSERT_EQ(actual, ordered);
        ASSERT_TRUE(JVDocument::clone(root)->equals(root));
    }

  private:
    [[nodiscard]] static std::string keyOf(int i) { return "a key, number " + std::to_string(i); }
    [[nodiscard]] std::string randomKey() {
        return keyOf(static_cast<int>(random_() % static_cast<unsigned>(keys_)));
    }

    void forgetNowAndThen(JV& root) {
        if (random_() % 4 == 0) {
            root.clear();
            values_.clear();
        } else if (random_() % 4 == 0) {
            document_->forget(&root);
            order_.clear();
        }
    }

    /// Often just the keys that are there, which moves the entries themselves.
    void setRandomOrder() {
        order_.clear();
        for (const auto& [key, value] : values_)
            order_.push_back(key);
        std::ranges::shuffle(order_, random_);
        if (random_() % 2 == 0)
            order_.push_back(randomKey());
        const std::vector<std::string_view> keys(order_.begin(), order_.end());
        document_->setKeys(document_->root(), keys);
    }

    std::mt19937& random_;
    int keys_;
    int counter_ = 1000;
    std::unique_ptr<JVDocument> document_;
    std::map<std::string, std::string> values_;
    std::vector<std::string> order_;
};

TEST(ObjectModel, randomEditsShowWhatAMapWouldShow) {
    std::mt19937 random(20260821);
    for (const int keys : {3, 9, 20, 400}) {
        for (int round = 0; round < 30; ++round) {
            SCOPED_TRACE("keys " + std::to_string(keys) + ", round " + std::to_string(round));
            Model model(random, keys, static_cast<int>(random() % static_cast<unsigned>(keys)));
            for (int edit = 0; edit < 60; ++edit) {
                ASSERT_NO_FATAL_FAILURE(model.edit());
                ASSERT_NO_FATAL_FAILURE(model.check());
            }
        }
    }
}

} // namespace
} // namespace specloom::jv
