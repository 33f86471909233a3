#pragma once

#include <cstdint>
#include <string_view>

namespace corvane {

/// What `InetAddr` gives for a text that is no address; 255.255.255.255 gives the same.
inline constexpr std::uint32_t NoAddress = 0xFFFFFFFF;

/// The IPv4 address of a text in dotted notation, its first part in the highest byte, read by the rules of the POSIX
/// function `inet_addr`: one to four parts, of which the last fills all bytes that are left; a part that begins with 0x
/// is hexadecimal, one with a leading zero octal; what stands behind a blank is passed over.
std::uint32_t InetAddr(std::string_view text);

}  // namespace corvane
