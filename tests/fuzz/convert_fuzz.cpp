// mirtane-convert: a drawing or a DXF file, read by the letter or as other programs write it, into each
// format.

#include "convert/convert.h"
#include "toolkit_session.h"

#include <fstream>
#include <string_view>

using namespace mirtane;
using namespace mirtane::convert;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::startToolkit();
    return 0;
}

// The way is told by the length, so that the files can be seeds as they are.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr Format formats[] = {Format::svg, Format::pdf, Format::png,
                                  Format::dxf, Format::mtd, Format::txt};
    constexpr const char* outs[] = {"out.svg", "out.pdf", "out.png", "out.dxf", "out.mtd", "out.txt"};
    const std::string file(data, data + size);
    const bool isDxf = file.find("SECTION") != std::string::npos;
    const std::string in = isDxf ? "in.dxf" : "in.mtd";
    std::ofstream(in, std::ios::binary) << file;
    Wishes wishes;
    const std::size_t way = size % std::size(formats);
    wishes.format = formats[way];
    wishes.size = {150, 100};
    wishes.asWindow = size / std::size(formats) % 2 == 0;
    mirtane::convert::convert({in, in, outs[way]}, wishes);
    return 0;
}
