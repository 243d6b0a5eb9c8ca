#include "engine/page_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>

#include "tests/support/error_of.h"

using namespace varnel;
using namespace varnel::engine;
using testing::HasSubstr;

namespace {

Page Sample(int number) {
    Page page{.width = 12'240, .height = 15'840, .content = {}};
    page.content.Add({.kind = ItemKind::kPageNumber,
                      .align = Align::kCenter,
                      .style = {.size = 200, .bold = true, .ink = Ink::kRule},
                      .box = {-5, 300, 70'000, 240}},
                     "Page " + std::to_string(number));
    page.content.Add({.align = Align::kRight,
                      .figure = true,
                      .style = {.italic = true},
                      .box = {1, -20, 0, 1 << 30}},
                     std::string(static_cast<std::size_t>(number % 300), 'x'));
    page.content.Add({.kind = ItemKind::kRule, .box = {0, 1, 2, 3}}, "");
    return page;
}

void ExpectSame(const Page& page, const Page& expected) {
    EXPECT_EQ(page.width, expected.width);
    EXPECT_EQ(page.height, expected.height);
    ASSERT_EQ(page.content.Items().size(), expected.content.Items().size());
    for (std::size_t i = 0; i < page.content.Items().size(); ++i) {
        const Item& item = page.content.Items()[i];
        const Item& wanted = expected.content.Items()[i];
        EXPECT_EQ(item.kind, wanted.kind);
        EXPECT_EQ(item.align, wanted.align);
        EXPECT_EQ(item.figure, wanted.figure);
        EXPECT_EQ(item.style, wanted.style);
        EXPECT_EQ(item.box, wanted.box);
        EXPECT_EQ(page.content.Text(item), expected.content.Text(wanted));
    }
}

/// Files of this process may not grow beyond `bytes` while it lives.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

  private:
    rlimit before_{};
    void (*handler_)(int);
};

}  // namespace

TEST(PageStore, GivesEveryPageBackInAnyOrderFromMemoryAndFile) {
    for (const std::size_t limit : {PageStore::kMemoryLimit, std::size_t{2000}, std::size_t{0}}) {
        PageStore store(limit);
        for (int i = 0; i < 100; ++i) store.Append(Sample(i));
        ASSERT_EQ(store.Count(), 100);
        Page page;
        for (const int index : {99, 0, 50, 51, 52, 3, 99}) {
            store.Read(index, page);
            ExpectSame(page, Sample(index));
        }
    }
}

TEST(PageStore, HasRoomForStylesThatAreYetToCome) {
    Page page;
    page.content.Add({.kind = ItemKind{4}, .align = Align{5}, .style = {.ink = Ink{6}}}, "new");
    page.content.Add({.kind = ItemKind{255}, .align = Align{255}, .style = {.ink = Ink{255}}}, "");
    PageStore store;
    store.Append(page);
    Page read;
    store.Read(0, read);
    ExpectSame(read, page);
}

TEST(PageStore, MayBeReadBetweenWrites) {
    PageStore store(0);
    Page page;
    for (int i = 0; i < 20; ++i) {
        store.Append(Sample(i));
        store.Read(i / 2, page);
        ExpectSame(page, Sample(i / 2));
    }
}

TEST(PageStore, AFullDiskIsToldAboutAndLeavesEarlierPagesReadable) {
    PageStore store(0);
    for (int i = 0; i < 10; ++i) store.Append(Sample(i));
    {
        const FullDisk full(4096);
        const auto append = [&] {
            for (int i = 10; i < 100; ++i) store.Append(Sample(i));
        };
        std::string text;
        EXPECT_EQ(test::ErrorOf(append, &text), error_number::kOther);
        EXPECT_THAT(text, HasSubstr(std::strerror(EFBIG)));
        EXPECT_THAT(text, HasSubstr("temporary folder"));
    }
    Page page;
    store.Read(9, page);
    ExpectSame(page, Sample(9));
}

TEST(PageStore, APageThatIsNotThereIsAnError) {
    PageStore store;
    store.Append(Sample(0));
    Page page;
    for (const int index : {1, -1})
        EXPECT_EQ(test::ErrorOf([&] { store.Read(index, page); }),
                  error_number::kSubscriptOutOfRange);
}
