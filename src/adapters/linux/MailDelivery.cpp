#include "adapters/linux/MailDelivery.h"

#include <curl/curl.h>
#include <sys/socket.h>

#include <algorithm>
#include <memory>
#include <string_view>

namespace corvane {
namespace {

using Transfer = std::unique_ptr<CURL, decltype(&::curl_easy_cleanup)>;
using Url = std::unique_ptr<CURLU, decltype(&::curl_url_cleanup)>;
using Names = std::unique_ptr<curl_slist, decltype(&::curl_slist_free_all)>;

// What could end the command in which it stands and begin another.
bool HasControls(const std::string& address) {
  return std::any_of(address.begin(), address.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; });
}

// The library writes the dot that ends a message itself.
std::string_view WithoutTerminator(std::string_view message) {
  if (message.ends_with("\r\n.\r\n")) message.remove_suffix(3);
  return message;
}

std::size_t TakeFrom(char* buffer, std::size_t size, std::size_t count, void* message) {
  auto& rest = *static_cast<std::string_view*>(message);
  const std::size_t taken = rest.copy(buffer, size * count);
  rest.remove_prefix(taken);
  return taken;
}

// Null when this can be no host.
Url UrlOf(const Endpoint& server) {
  Url url(::curl_url(), &::curl_url_cleanup);
  const bool isIPv6 = server.Host.find(':') != server.Host.npos;
  const std::string host = isIPv6 ? "[" + server.Host + "]" : server.Host, port = std::to_string(server.Port);
  if (::curl_url_set(url.get(), CURLUPART_SCHEME, "smtp", 0) != CURLUE_OK ||
      ::curl_url_set(url.get(), CURLUPART_HOST, host.c_str(), 0) != CURLUE_OK ||
      ::curl_url_set(url.get(), CURLUPART_PORT, port.c_str(), 0) != CURLUE_OK)
    url.reset();
  return url;
}

Transfer NewTransfer(std::chrono::milliseconds limit) {
  static const CURLcode ready = ::curl_global_init(CURL_GLOBAL_DEFAULT);
  Transfer transfer(ready == CURLE_OK ? ::curl_easy_init() : nullptr, &::curl_easy_cleanup);
  if (!transfer) return transfer;
  CURL* const curl = transfer.get();
  ::curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
  // Of the environment nothing is taken.
  ::curl_easy_setopt(curl, CURLOPT_PROXY, "");
  ::curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, static_cast<long>(limit.count()));
  // The limit does not hold for the farewell, this does; and at the limit no look-up of a name is awaited.
  ::curl_easy_setopt(curl, CURLOPT_SERVER_RESPONSE_TIMEOUT,
                     static_cast<long>(std::chrono::ceil<std::chrono::seconds>(limit).count()));
  ::curl_easy_setopt(curl, CURLOPT_QUICK_EXIT, 1L);
  return transfer;
}

// The message is delivered: what the server says to the farewell is not awaited.
void StopListening(CURL* transfer) {
  curl_socket_t socket = CURL_SOCKET_BAD;
  if (::curl_easy_getinfo(transfer, CURLINFO_ACTIVESOCKET, &socket) == CURLE_OK && socket != CURL_SOCKET_BAD)
    ::shutdown(socket, SHUT_RD);
}

}  // namespace

bool MailDelivery::Deliver(std::chrono::milliseconds limit) const {
  const Url url = UrlOf(Server);
  const Names recipients(::curl_slist_append(nullptr, Recipient.c_str()), &::curl_slist_free_all);
  const Transfer transfer = NewTransfer(limit);
  if (!url || !recipients || !transfer || HasControls(Sender + Recipient)) return false;
  std::string_view rest = WithoutTerminator(Message);
  CURL* const curl = transfer.get();
  ::curl_easy_setopt(curl, CURLOPT_CURLU, url.get());
  ::curl_easy_setopt(curl, CURLOPT_MAIL_FROM, Sender.c_str());
  ::curl_easy_setopt(curl, CURLOPT_MAIL_RCPT, recipients.get());
  ::curl_easy_setopt(curl, CURLOPT_UPLOAD, 1L);
  ::curl_easy_setopt(curl, CURLOPT_READFUNCTION, &TakeFrom);
  ::curl_easy_setopt(curl, CURLOPT_READDATA, &rest);
  const bool isDelivered = ::curl_easy_perform(curl) == CURLE_OK;
  StopListening(curl);
  return isDelivered;
}

}  // namespace corvane
