#pragma once

#include <string>
#include <string_view>

#include "host/application.h"

namespace varnel::framework {

/// `text` without its "&" accelerator marks.
std::string WithoutAccelerators(std::string_view text);

/// The translated text of that number, without accelerator marks: for titles and captions.
std::string PlainText(Application& application, std::int16_t number);

/// `text` without blanks at its ends.
std::string_view Trimmed(std::string_view text);

/// The date as the host's user reads it.
std::string ShortDate(Application& application, Date date);

}  // namespace varnel::framework
