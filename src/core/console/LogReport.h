#pragma once

#include <string>

#include "core/console/ServiceEvents.h"
#include "platform/DateTime.h"

namespace corvane {

/// The HTML report of the service's events: a header, a record for each event, a footer. Every line ends with CR LF; a
/// cell with all that it holds is one line.
std::string CreateHTMLHeader(DateTime now);
/// Appends a row with the event and a blank one. What a message holds is shown as text, never read as markup.
void CreateNextHTMLRecord(std::string& report, const ServiceEvent& event);
std::string CreateHTMLFooter();

}  // namespace corvane
