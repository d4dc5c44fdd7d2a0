#pragma once

#include "print/printer.h"

#include <functional>
#include <variant>
#include <vector>

namespace mirtane {

// One operation as it was called; a string stands where it was given.
struct PrintOp {
    using Arg = std::variant<double, bool, std::string>;

    std::string_view name;
    std::vector<Arg> args;

    friend bool operator==(const PrintOp&, const PrintOp&) = default;
};

// A printer that writes down what it is told: for tests, and for the picture of a page before it is printed.
class RecordingPrinter : public Printer {
  public:
    // Letter paper, the whole of it.
    explicit RecordingPrinter(float width = 12240, float height = 15840) : width_(width), height_(height) {}

    // The operations of the last page, in order.
    const std::vector<PrintOp>& printed() const { return printed_; }

    float pageWidth() const override { return width_; }
    float pageHeight() const override { return height_; }
    bool printsToFile() const override { return false; }
    std::string setup(const PageName&) override { return {}; }
    bool beginPage(const PageName& name) override;
    void font(std::string_view name, double points) override;
    void text(double x, double y, std::string_view utf8) override;
    void pen(std::int16_t style, int width) override;
    void line(double x1, double y1, double x2, double y2) override;
    void circle(double x, double y, double r) override;
    void arc(double x, double y, double r, double a1, double a2) override;
    void point(double x, double y) override;
    void rotatedText(double x, double y, double height, int degrees, bool underline,
                     std::string_view utf8) override;
    bool endPage() override;

  private:
    void note(std::string_view name, std::vector<PrintOp::Arg> args);

    float width_;
    float height_;
    std::vector<PrintOp> printed_;
};

// Has the operations carried out once more, on another printer.
void replay(const std::vector<PrintOp>& ops, Printer& printer);

} // namespace mirtane
