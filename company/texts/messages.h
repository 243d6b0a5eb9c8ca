#pragma once

#include <functional>
#include <string>

#include "company/texts/texts.h"
#include "host/application.h"

namespace varnel::company {

/// Host messages from a small table, and message boxes that go to a sink and are counted.
class HostMessages final : public MessageService {
  public:
    /// Takes the text of a message box; it was answered when it returns.
    using Sink = std::function<void(const std::string& text)>;

    /// `formats` must outlive this; `sink` may be empty.
    HostMessages(Language language, Formats& formats, Sink sink);

    /// "{0}", "{1}", … are replaced by the arguments: dates and amounts in the user's format. A
    /// message that is not in the table reads as its number and source.
    std::string Message(std::int32_t number, std::string_view source,
                        std::span<const Variant> arguments) override;
    void ShowMessageBox(const std::string& text) override;
    /// How many message boxes were shown so far.
    int BoxesShown() const { return boxes_shown_; }

  private:
    void AppendArgument(const Variant& argument, std::string& out);

    Language language_;
    Formats& formats_;
    Sink sink_;
    int boxes_shown_ = 0;
};

}  // namespace varnel::company
