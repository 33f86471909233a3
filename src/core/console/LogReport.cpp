#include "core/console/LogReport.h"

#include <initializer_list>
#include <string_view>

#include "core/Browser.h"
#include "core/DateText.h"
#include "core/console/EventTypes.h"

namespace corvane {
namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view DateCell = "<TD ALIGN='Left'><FONT FACE=ARIAL SIZE=2>";
constexpr std::string_view DateCellEnd = "</FONT></TD>";
constexpr std::string_view StrongCellEnd = "</STRONG></FONT></TD>";
constexpr std::string_view WhiteRow = "<TR BGCOLOR=#FFFFFF>";
constexpr std::string_view BlankCell =
    "<TD COLSPAN=4 ALIGN='Left'><FONT FACE=ARIAL SIZE=2 COLOR=#FFFFFF><STRONG>&nbsp;</STRONG></FONT></TD>";

void WriteLine(std::string& page, std::initializer_list<std::string_view> pieces) {
  for (const std::string_view piece : pieces) page += piece;
  page += LineEnd;
}

void WriteRow(std::string& page, std::initializer_list<std::string_view> cell) {
  WriteLine(page, {"<TR>"});
  WriteLine(page, cell);
  WriteLine(page, {"</TR>"});
}

void WriteBlankRow(std::string& page) {
  WriteLine(page, {WhiteRow});
  WriteLine(page, {BlankCell});
  WriteLine(page, {"</TR>"});
}

void WriteOrigin(std::string& page, const std::string& date) {
  WriteLine(page, {"<TABLE ALIGN=CENTER WIDTH=80%>"});
  WriteLine(page, {"<TR>"});
  WriteLine(page,
            {"<TD ALIGN=LEFT><FONT FACE=VERDANA SIZE=1><STRONG>Created on ", date, " by Corvane</STRONG></FONT></TD>"});
  WriteLine(page, {"<TD ALIGN=right><FONT FACE=VERDANA SIZE=1><STRONG><A HREF=\"", VendorSite,
                   "\">Tarnwick Software</A></STRONG></FONT></TD>"});
  WriteLine(page, {"</TR>"});
  WriteLine(page, {"</TABLE>"});
}

void WriteBanner(std::string& page, const std::string& date) {
  constexpr std::string_view cell = "<TH ALIGN=LEFT BGCOLOR=#FFFFFF><FONT FACE=ARIAL SIZE=2 COLOR=#000000>";
  constexpr std::string_view cellEnd = "</FONT></TH>";
  WriteLine(page, {"<TABLE ALIGN=CENTER WIDTH=80% HEIGHT=15>"});
  WriteRow(page, {"<TH bgcolor=#F72E1E><FONT FACE=ARIAL SIZE=4 COLOR=#FFFFFF>Corvane Service Log Entries on ", date,
                  cellEnd});
  WriteRow(page, {cell, "Date Created: ", date, cellEnd});
  WriteRow(page, {cell, "Source: Corvane Service", cellEnd});
  WriteRow(page, {cell, "Log: Application", cellEnd});
  WriteRow(page, {"<TH ALIGN=LEFT bgcolor=#F72E1E>&nbsp;</TH>"});
  WriteLine(page, {"</TABLE>"});
}

void WriteHeadRow(std::string& page) {
  WriteLine(page, {"<TR BGCOLOR=#330099>"});
  for (const std::string_view head : {"Date/Time", "Type Of Event", "Description"})
    WriteLine(page, {"<TD ALIGN='Left'><FONT FACE=ARIAL SIZE=2 COLOR=#FFFFFF><STRONG>", head, StrongCellEnd});
  WriteLine(page, {"</TR>"});
}

// Whoever can log an event must not reach into the browser of the administrator who reads the report.
std::string WithoutMarkup(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char c : text) {
    if (c == '&')
      escaped += "&amp;";
    else if (c == '<')
      escaped += "&lt;";
    else if (c == '>')
      escaped += "&gt;";
    else
      escaped += c;
  }
  return escaped;
}

std::string_view ColourOf(std::string_view type) {
  const std::size_t place = PlaceOfEventType(type);
  return place < EventTypes.size() ? EventTypes[place].Colour : "black";
}

}  // namespace

std::string CreateHTMLHeader(DateTime now) {
  const std::string date = GeneralDate(now);
  std::string page;
  WriteLine(page, {"<HTML>"});
  WriteLine(page, {"<HEAD>"});
  WriteLine(page, {"<TITLE>Corvane Service Log Entries on ", date, "</TITLE>"});
  WriteLine(page, {"</HEAD>"});
  WriteLine(page, {"<BODY>"});
  WriteLine(page, {"<DIV ALIGN=CENTER>"});
  WriteOrigin(page, date);
  WriteBanner(page, date);
  WriteLine(page, {"<BR><BR>"});
  WriteLine(page, {"<TABLE ALIGN=CENTER WIDTH=80% CELLPADDING=1 CELLSPACING=1 BORDER=0>"});
  WriteHeadRow(page);
  WriteBlankRow(page);
  return page;
}

void CreateNextHTMLRecord(std::string& report, const ServiceEvent& event) {
  WriteLine(report, {"<TR BGCOLOR=#C0C0C0>"});
  WriteLine(report, {DateCell, event.Date, DateCellEnd});
  WriteLine(report, {"<TD ALIGN='Left'><FONT FACE=ARIAL SIZE=2 COLOR='", ColourOf(event.Type), "'><STRONG>", event.Type,
                     StrongCellEnd});
  WriteLine(report, {DateCell, WithoutMarkup(event.Description), DateCellEnd});
  WriteLine(report, {"</TR>"});
  WriteBlankRow(report);
}

std::string CreateHTMLFooter() {
  std::string page;
  for (const std::string_view line : {"</TABLE>", "</BODY>", "</HTML>"}) WriteLine(page, {line});
  return page;
}

}  // namespace corvane
