#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/surface.h"

namespace varnel::engine {

/// What a whole output is about.
struct DocumentInfo {
    std::string title = {};
    std::string company = {};
    std::string language = {};  // "en-CA"
    std::string creator = {};   // The program that made it.
    /// ISO, the session date: no clock, so that the same input gives the same bytes.
    std::string date = {};
};

/// Paper and margins in twips.
///
/// A page footer sees the last row of its page, so it is formatted when the page is full. The room
/// kept for it is the height of its section, or that of the footer before if it was taller: on the
/// page where it grows, it may reach down into the bottom margin.
struct PageSetup {
    Twips paper_width = 12'240;  // US Letter.
    Twips paper_height = 15'840;
    Twips margin_top = 720;
    Twips margin_bottom = 720;
    Twips margin_side = 500;  // At least: RunToPages tells how a layout is fitted between them.

    static PageSetup Letter() { return {}; }
    static PageSetup A4() { return {11'906, 16'838, 720, 720, 500}; }
    PageSetup Landscape() const {
        return {paper_height, paper_width, margin_top, margin_bottom, margin_side};
    }
};

enum class ItemKind : std::uint8_t { kText, kRule, kPageNumber };

/// Something printed: one line of text in its box, or a rule. Boxes are absolute on a page,
/// relative to the band's top left corner in a placed band. The text lies in the arena of the page
/// or band that holds the item.
struct Item {
    ItemKind kind = ItemKind::kText;
    Align align = Align::kLeft;
    /// Stands for a number or a date: a renderer may condense it to fit, never cut it.
    bool figure = false;
    TextStyle style = {};
    Box box = {};
    std::uint32_t text_offset = 0;
    std::uint32_t text_length = 0;
};

/// Items and their texts; storage is reused when it is cleared.
class ItemList {
  public:
    void Clear() {
        items_.clear();
        texts_.clear();
    }
    void Add(Item item, std::string_view text) {
        item.text_offset = static_cast<std::uint32_t>(texts_.size());
        item.text_length = static_cast<std::uint32_t>(text.size());
        texts_ += text;
        items_.push_back(item);
    }
    /// Appends the items of another list, moved by (dx, dy).
    void Append(const ItemList& other, Twips dx, Twips dy) {
        const auto shift = static_cast<std::uint32_t>(texts_.size());
        texts_ += other.texts_;
        for (Item item : other.items_) {
            item.text_offset += shift;
            item.box.left += dx;
            item.box.top += dy;
            items_.push_back(item);
        }
    }
    /// Appends `over_break` of a band, moved likewise; items without text take those of `carried`
    /// in order.
    void AppendCarried(const ItemList& over_break, const ItemList& carried, Twips dx, Twips dy) {
        std::size_t taken = 0;
        for (Item item : over_break.items_) {
            std::string_view text = over_break.Text(item);
            if (text.empty() && taken < carried.items_.size())
                text = carried.Text(carried.items_[taken++]);
            item.box.left += dx;
            item.box.top += dy;
            Add(item, text);
        }
    }
    bool Empty() const { return items_.empty(); }
    const std::vector<Item>& Items() const { return items_; }
    std::string_view Text(const Item& item) const {
        return std::string_view(texts_).substr(item.text_offset, item.text_length);
    }

  private:
    std::vector<Item> items_;
    std::string texts_;
};

/// A formatted section with its height after growth: what the paginator moves about and never
/// formats again.
struct PlacedBand {
    SectionKind kind = SectionKind::kDetail;
    Twips height = 0;
    ItemList content;
    /// Of a row: the texts that are carried when a page ends after it.
    ItemList carried = {};
    /// What is printed besides where a group goes on over a page break; an item without text takes
    /// a carried one.
    ItemList over_break = {};
};

struct Page {
    Twips width = 0;
    Twips height = 0;
    ItemList content;
};

/// How text fills space in one output: the same for laying out and for drawing.
class Measurer {
  public:
    virtual ~Measurer() = default;
    virtual Twips LineHeight(const TextStyle& style) = 0;
    /// Breaks `text` into the lines that fit `width`; always at least one. Views into `text`.
    virtual void BreakLines(std::string_view text, const TextStyle& style, Twips width,
                            std::vector<std::string_view>& lines) = 0;
};

/// Where a live section stands among the others.
struct BandMark {
    /// 0 for the report's own sections, 1 and more for those of sub-reports, which come right after
    /// the section that holds them.
    int depth = 0;
    /// Of a group's header and footer, from the outside in, 0 the outermost; -1 for all others.
    int level = -1;
    /// False for a group header or footer that was hidden or skipped: nothing of it is to be
    /// written, but its group begins or ends here.
    bool printed = true;
};

/// Takes live sections in print order: data exports. Page header and footer come once. A section
/// that does not print is left out, unless it is the header or footer of a group: these come
/// always, so that every line stands between those of all its groups.
class BandSink {
  public:
    virtual ~BandSink() = default;
    virtual void Begin(const DocumentInfo& info, const Surface& surface) = 0;
    virtual void Write(const Section& section, const BandMark& mark) = 0;
    virtual void End() = 0;
};

/// Takes placed bands in print order on one endless page: plain text. Page header and footer come
/// once.
class PlacedBandSink {
  public:
    virtual ~PlacedBandSink() = default;
    /// `width` is the layout's, after widening.
    virtual void Begin(const DocumentInfo& info, Twips width) = 0;
    virtual void Write(const PlacedBand& band) = 0;
    virtual void End() = 0;
};

/// Takes finished pages in order; the number of pages is known before the first.
class PageSink {
  public:
    virtual ~PageSink() = default;
    virtual void Begin(const DocumentInfo& info, int page_count) = 0;
    virtual void Write(const Page& page, int number, int page_count) = 0;
    virtual void End() = 0;
};

}  // namespace varnel::engine
