#include "print/recording_printer.h"

#include <algorithm>

namespace mirtane {
namespace {

double numberAt(const PrintOp& op, std::size_t i)
{
    return std::get<double>(op.args[i]);
}

const std::string& textAt(const PrintOp& op, std::size_t i)
{
    return std::get<std::string>(op.args[i]);
}

struct ReplayRow {
    std::string_view name;
    void (*call)(const PrintOp& op, Printer& to);
};

// Numbers that were whole when they were noted are whole again.
constexpr ReplayRow replayRows[] = {
    {"font", [](const PrintOp& op, Printer& to) { to.font(textAt(op, 0), numberAt(op, 1)); }},
    {"text",
     [](const PrintOp& op, Printer& to) { to.text(numberAt(op, 0), numberAt(op, 1), textAt(op, 2)); }},
    {"pen",
     [](const PrintOp& op, Printer& to) {
         to.pen(static_cast<std::int16_t>(numberAt(op, 0)), static_cast<int>(numberAt(op, 1)));
     }},
    {"line",
     [](const PrintOp& op, Printer& to) {
         to.line(numberAt(op, 0), numberAt(op, 1), numberAt(op, 2), numberAt(op, 3));
     }},
    {"circle",
     [](const PrintOp& op, Printer& to) { to.circle(numberAt(op, 0), numberAt(op, 1), numberAt(op, 2)); }},
    {"arc",
     [](const PrintOp& op, Printer& to) {
         to.arc(numberAt(op, 0), numberAt(op, 1), numberAt(op, 2), numberAt(op, 3), numberAt(op, 4));
     }},
    {"point", [](const PrintOp& op, Printer& to) { to.point(numberAt(op, 0), numberAt(op, 1)); }},
    {"rotatedText",
     [](const PrintOp& op, Printer& to) {
         to.rotatedText(numberAt(op, 0), numberAt(op, 1), numberAt(op, 2), static_cast<int>(numberAt(op, 3)),
                        std::get<bool>(op.args[4]), textAt(op, 5));
     }},
};

} // namespace

void RecordingPrinter::note(std::string_view name, std::vector<PrintOp::Arg> args)
{
    printed_.push_back({name, std::move(args)});
}

bool RecordingPrinter::beginPage(const PageName&)
{
    printed_.clear();
    return true;
}

void RecordingPrinter::font(std::string_view name, double points)
{
    note("font", {std::string(name), points});
}

void RecordingPrinter::text(double x, double y, std::string_view utf8)
{
    note("text", {x, y, std::string(utf8)});
}

void RecordingPrinter::pen(std::int16_t style, int width)
{
    note("pen", {static_cast<double>(style), static_cast<double>(width)}); // all numbers are kept alike
}

void RecordingPrinter::line(double x1, double y1, double x2, double y2)
{
    note("line", {x1, y1, x2, y2});
}

void RecordingPrinter::circle(double x, double y, double r)
{
    note("circle", {x, y, r});
}

void RecordingPrinter::arc(double x, double y, double r, double a1, double a2)
{
    note("arc", {x, y, r, a1, a2});
}

void RecordingPrinter::point(double x, double y)
{
    note("point", {x, y});
}

void RecordingPrinter::rotatedText(double x, double y, double height, int degrees, bool underline,
                                   std::string_view utf8)
{
    note("rotatedText",
         {x, y, height, static_cast<double>(degrees), underline, std::string(utf8)}); // as above
}

bool RecordingPrinter::endPage()
{
    note("endPage", {});
    return true;
}

void replay(const std::vector<PrintOp>& ops, Printer& printer)
{
    for (const PrintOp& op : ops) {
        const auto* const row = std::ranges::find(replayRows, op.name, &ReplayRow::name);
        if (row != std::end(replayRows)) row->call(op, printer);
    }
}

} // namespace mirtane
