#pragma once

// The two streams that a field list is run through. A call takes fields of one sort: numbers, or strings,
// which are counted, UTF-8 in memory and Windows-1252 in the file ("?" for a character that the code page
// lacks).

#include "files/bytes.h"
#include "text/code_page.h"

#include <concepts>

namespace mirtane {

template <class Field>
concept TextField = std::same_as<Field, std::string>;

// Fills the fields that it is called with, in their order.
class FieldReader {
  public:
    explicit FieldReader(ByteReader& in) : in_(in) {}

    template <class... Number> void operator()(Number&... field) { in_.numbers(field...); }
    template <TextField... Text> void operator()(Text&... field) { (take(field), ...); }

  private:
    // Most texts of a drawing are empty: those cost no conversion.
    void take(std::string& field)
    {
        const std::string_view bytes = in_.counted();
        field.clear();
        if (!bytes.empty()) field = fromCodePage(bytes);
    }

    ByteReader& in_;
};

// Writes the fields that it is called with, in their order.
class FieldWriter {
  public:
    explicit FieldWriter(ByteWriter& out) : out_(out) {}

    template <class... Number> void operator()(const Number&... field) { out_.numbers(field...); }
    template <TextField... Text> void operator()(const Text&... field) { (put(field), ...); }

  private:
    // Nearly all texts are the same in both.
    void put(const std::string& field) { out_.counted(isSameInCodePage(field) ? field : toCodePage(field)); }

    ByteWriter& out_;
};

} // namespace mirtane
