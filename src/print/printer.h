#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mirtane {

// What a page goes by.
struct PageName {
    std::string file;  // where it goes if it becomes a file (absolute, UTF-8)
    std::string title; // of the document that it is
};

// A printer as the page needs it. Coordinates and lengths are twips (1440 to the inch) from the upper left of
// the printable area, y down; angles are counter-clockwise. Everything is printed in black.
class Printer {
  public:
    virtual ~Printer() = default;

    // The printable area in twips, as it was when the program started; 0 for a printer that can't print.
    virtual float pageWidth() const = 0;
    virtual float pageHeight() const = 0;
    // Whether pages become a file, for want of a printer.
    virtual bool printsToFile() const = 0;
    // The machine's printer that pages come out of; empty where they become files.
    virtual std::string name() const { return {}; }
    // Where pages that become files go; empty: beside the drawing.
    virtual std::string folder() const { return {}; }
    // The user's choice of printer, paper and place; next is the page as it would be put out now. What has
    // been read of the page stays. Gives what there is to say of the choice.
    virtual std::string setup(const PageName& next) = 0;

    // A page begins. False if it can't be begun.
    virtual bool beginPage(const PageName& name) = 0;
    virtual void font(std::string_view name, double points) = 0;
    virtual void text(double x, double y, std::string_view utf8) = 0; // (x, y) its upper left
    virtual void pen(std::int16_t style, int width) = 0; // style as on the surface, width in device pixels
    virtual void line(double x1, double y1, double x2, double y2) = 0;
    virtual void circle(double x, double y, double r) = 0;
    virtual void arc(double x, double y, double r, double a1, double a2) = 0; // radians, from a1 to a2
    virtual void point(double x, double y) = 0;
    // In the current font, turned about its upper left; height is the em in twips, degrees are whole.
    virtual void rotatedText(double x, double y, double height, int degrees, bool underline,
                             std::string_view utf8) = 0;
    // False if the page could not be put out.
    virtual bool endPage() = 0;
};

} // namespace mirtane
