#include "engine/page_codec.h"

#include <cstddef>
#include <cstdint>

namespace varnel::engine {

namespace {

/// Small numbers in few bytes: seven bits each, the sign in the lowest.
char* PutNumber(char* end, std::int64_t number) {
    auto rest =
        (static_cast<std::uint64_t>(number) << 1) ^ static_cast<std::uint64_t>(number >> 63);
    for (; rest >= 0x80; rest >>= 7) *end++ = static_cast<char>(rest | 0x80);
    *end++ = static_cast<char>(rest);
    return end;
}

/// Collected first: appending a string byte by byte costs more than all the rest.
template <std::size_t kCount>
void PutNumbers(std::string& bytes, const std::int64_t (&numbers)[kCount]) {
    constexpr std::size_t kMostBytes = 10;
    char buffer[kCount * kMostBytes];
    char* end = buffer;
    for (const auto number : numbers) end = PutNumber(end, number);
    bytes.append(buffer, end);
}

class Reader {
  public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {}

    bool AtEnd() const { return at_ == bytes_.size(); }
    template <class T = Twips>
    T Number() {
        std::uint64_t number = 0;
        for (unsigned shift = 0;; shift += 7) {
            const auto byte = static_cast<unsigned char>(bytes_[at_++]);
            number |= static_cast<std::uint64_t>(byte & 0x7F) << shift;
            if (byte < 0x80) break;
        }
        return static_cast<T>(static_cast<std::int64_t>(number >> 1) ^
                              -static_cast<std::int64_t>(number & 1));
    }
    std::string_view Text() {
        const auto length = Number<std::size_t>();
        const auto text = bytes_.substr(at_, length);
        at_ += length;
        return text;
    }

  private:
    std::string_view bytes_;
    std::size_t at_ = 0;
};

int PackFlags(const Item& item) {
    return int{item.figure} | int{item.style.bold} << 1 | int{item.style.italic} << 2;
}

void UnpackFlags(int flags, Item& item) {
    item.figure = (flags & 1) != 0;
    item.style.bold = (flags & 2) != 0;
    item.style.italic = (flags & 4) != 0;
}

}  // namespace

void EncodePage(const Page& page, std::string& bytes) {
    PutNumbers(bytes, {page.width, page.height});
    Twips top = 0;
    for (const Item& item : page.content.Items()) {
        const auto text = page.content.Text(item);
        PutNumbers(
            bytes,
            {static_cast<int>(item.kind), static_cast<int>(item.align),
             static_cast<int>(item.style.ink), PackFlags(item), item.style.size, item.box.left,
             item.box.top - top,  // Neighbours mostly stand on one line.
             item.box.width, item.box.height, static_cast<std::int64_t>(text.size())});
        bytes += text;
        top = item.box.top;
    }
}

void DecodePage(std::string_view bytes, Page& page) {
    Reader reader(bytes);
    page.width = reader.Number();
    page.height = reader.Number();
    page.content.Clear();
    Twips top = 0;
    while (!reader.AtEnd()) {
        Item item;
        item.kind = reader.Number<ItemKind>();
        item.align = reader.Number<Align>();
        item.style.ink = reader.Number<Ink>();
        UnpackFlags(reader.Number<int>(), item);
        item.style.size = reader.Number();
        item.box.left = reader.Number();
        item.box.top = top += reader.Number();
        item.box.width = reader.Number();
        item.box.height = reader.Number();
        page.content.Add(item, reader.Text());
    }
}

}  // namespace varnel::engine
