#pragma once

#include <string>
#include <string_view>

#include "adapters/settings/RegistryKey.h"

namespace corvane::settings {

/// Reads a registry from its text form into `top`. False when the text is not of this form; `top` is of no use then.
///
/// The form is that of registry exports, in UTF-8: a first line that names it, `[key]` lines, and behind each its
/// values as `"Name"=` or, for the default value, `@=`. Then `"text"`, in which `\` stands before `\` and `"`, `dword:`
/// and a hexadecimal number, or `hex:` (binary) or `hex(type):` and bytes parted by commas, which a `\` at the end of
/// the line continues. Empty lines and lines that begin with `;` are passed over and not kept.
bool ParseRegistry(std::string_view text, RegistryKey& top);

/// The text form of a registry.
std::string FormatRegistry(const RegistryKey& top);

}  // namespace corvane::settings
