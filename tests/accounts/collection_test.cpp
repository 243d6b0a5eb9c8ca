#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "accounts/cgl_acct.h"
#include "accounts/collection_enumerator.h"
#include "tests/support/error_of.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

class CollectionTest : public testing::Test {
  protected:
    CollectionTest() {
        for (const char* name : {"Cash", "Bank", "Land"}) Add(name, name);
    }

    void Add(const std::string& description, const std::string& key) {
        auto account = std::make_shared<CGLAcct>();
        account->SetDescr(description);
        items_->Add(std::move(account), key);
    }
    const std::string& At(const Variant& index_key) { return items_->At(index_key)->Descr(); }

    std::vector<std::string> All() {
        std::vector<std::string> texts;
        for (const auto& item : items_->All()) texts.push_back(item->Descr());
        return texts;
    }

    std::shared_ptr<KeyedCollection<CGLAcct>> items_ = std::make_shared<KeyedCollection<CGLAcct>>();
};

TEST_F(CollectionTest, NumbersArePositionsAndTextsAreKeys) {
    Add("Shares", "1");
    EXPECT_EQ(At(1), "Cash");
    EXPECT_EQ(At(std::int16_t{3}), "Land");
    EXPECT_EQ(At(2.0), "Bank");
    EXPECT_EQ(At("1"), "Shares");
    EXPECT_EQ(At("Bank"), "Bank");
}

TEST_F(CollectionTest, WhatIsNotThereIsAnErrorThatTellsWhatWasAskedFor) {
    for (const std::int32_t position : {0, -1, 4})
        EXPECT_EQ(ErrorOf([&] { At(position); }), error_number::kSubscriptOutOfRange);
    for (const char* key : {"Sea", "", "2"})
        EXPECT_EQ(ErrorOf([&] { At(key); }), error_number::kInvalidArgument);
    EXPECT_EQ(ErrorOf([&] { At(Variant::Null{}); }), error_number::kTypeMismatch);
    EXPECT_EQ(DescriptionOf([&] { At(4); }), "The collection has no item 4; it holds 3");
    EXPECT_EQ(DescriptionOf([&] { items_->Remove("Sea"); }),
              "The collection has no item with the key \"Sea\"");
    EXPECT_EQ(items_->All().size(), 3u);
}

TEST_F(CollectionTest, AKeyIsTakenOnce) {
    std::string description;
    EXPECT_EQ(ErrorOf([&] { Add("Pond", "Land"); }, &description), error_number::kDuplicateKey);
    EXPECT_EQ(description, "The collection has an item with the key \"Land\" already");
    EXPECT_THAT(All(), ElementsAre("Cash", "Bank", "Land"));
    items_->Remove("Land");
    Add("Pond", "Land");
    EXPECT_EQ(At("Land"), "Pond");
}

TEST_F(CollectionTest, ItemsWithoutAKeyAreReachedByPosition) {
    Add("Sea", "");
    Add("Air", "");
    EXPECT_EQ(At(4), "Sea");
    EXPECT_EQ(At(5), "Air");
    items_->Remove(4);
    EXPECT_EQ(At(4), "Air");
}

TEST_F(CollectionTest, RemovingMovesUpWhatFollowsAndKeepsItsKeys) {
    items_->Remove(1);
    EXPECT_THAT(All(), ElementsAre("Bank", "Land"));
    EXPECT_EQ(At("Bank"), "Bank");
    EXPECT_EQ(At("Land"), "Land");
    EXPECT_EQ(ErrorOf([&] { At("Cash"); }), error_number::kInvalidArgument);
    items_->Remove("Land");
    EXPECT_EQ(At(1), "Bank");
}

TEST_F(CollectionTest, AnEnumeratorHandsOutEachItemInOrderLateBoundToo) {
    const ObjectRef it = std::make_shared<CollectionEnumerator<CGLAcct>>(items_);
    std::vector<std::string> texts;
    const auto walk = [&] {
        while (const ObjectRef item = it->Call("Next", {}).ToObject())
            texts.push_back(item->Get("Descr").ToText());
    };
    walk();
    EXPECT_EQ(it->Call("Next", {}).ToObject(), nullptr);
    it->Call("Reset", {});
    walk();
    EXPECT_THAT(texts, ElementsAre("Cash", "Bank", "Land", "Cash", "Bank", "Land"));
    EXPECT_EQ(ErrorOf([&] { it->Call("Skip", {}); }), error_number::kUnknownMember);
}

TEST_F(CollectionTest, AnEnumeratorSurvivesChangesAndTheOwnerOfTheCollection) {
    CollectionEnumerator<CGLAcct> it(items_);
    EXPECT_EQ(it.Next()->Descr(), "Cash");
    items_->Remove("Land");
    Add("Sea", "Sea");
    items_.reset();
    EXPECT_EQ(it.Next()->Descr(), "Bank");
    EXPECT_EQ(it.Next()->Descr(), "Sea");
    EXPECT_EQ(it.Next(), nullptr);
}

}  // namespace
}  // namespace varnel::test
