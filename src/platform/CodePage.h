#pragma once

#include <string>
#include <string_view>

namespace corvane {

/// The bytes of a text in the ANSI code page (1252); "?" stands for a character that the page lacks. A byte that is no
/// UTF-8 stays as it is.
std::string AnsiBytes(std::string_view text);

/// The bytes under which a text stands in a file that programs of the ANSI code page (1252) read too. A text with
/// characters that the page lacks stands there in UTF-8, so that nothing is lost.
std::string BytesOfText(std::string_view text);

/// The text of such bytes: UTF-8 when they are well-formed UTF-8, else code page 1252. The inverse of `BytesOfText` for
/// every well-formed text.
std::string TextOfBytes(std::string_view bytes);

}  // namespace corvane
