#pragma once

// A DXF file that was just written, as its records, and drawings to write.

#include "exchange/dxf_drawing.h"
#include "records.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace mirtane::exchanged {

struct WrittenPair {
    int code = -1;
    std::string value;
};

struct Record {
    std::string section, type;
    std::vector<WrittenPair> pairs;

    std::vector<std::string> all(int code) const
    {
        std::vector<std::string> values;
        for (const WrittenPair& pair : pairs) {
            if (pair.code == code) values.push_back(pair.value);
        }
        return values;
    }
    std::string first(int code) const
    {
        const auto values = all(code);
        return values.empty() ? "" : values.front();
    }
    double number(int code) const
    {
        const std::string text = first(code);
        double value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }
    // A record's handle; that of a dimension style has a code of its own.
    std::string handle() const { return type == "DIMSTYLE" ? first(105) : first(5); }
};

inline std::vector<WrittenPair> pairsOf(const std::string& bytes)
{
    std::vector<WrittenPair> pairs;
    std::istringstream in(bytes);
    std::string code;
    std::string value;
    while (std::getline(in, code) && std::getline(in, value)) {
        if (value.ends_with('\r')) value.pop_back();
        pairs.push_back({std::stoi(code), value});
    }
    return pairs;
}

inline std::vector<Record> recordsOf(const std::string& bytes)
{
    std::vector<Record> records;
    std::string section;
    bool named = true;
    for (const WrittenPair& pair : pairsOf(bytes)) {
        if (pair.code == 0) records.push_back({section, pair.value, {}});
        if (pair.code == 0) named = pair.value != "SECTION";
        if (!named && pair.code == 2) section = pair.value;
        if (pair.code != 0) records.back().pairs.push_back(pair);
    }
    return records;
}

inline std::vector<Record> of(const std::vector<Record>& records, const std::string& section,
                              const std::string& type = "")
{
    std::vector<Record> found;
    for (const Record& r : records) {
        const bool frame = r.type == "SECTION" || r.type == "ENDSEC";
        if (!frame && r.section == section && (type.empty() || r.type == type)) found.push_back(r);
    }
    return found;
}

// A letter is a tenth of the size wide.
inline float plainWidth(const EntityRecord& r)
{
    const float size = r.kind == Kind::text ? r.p2.x : r.s2;
    return size / 10 * static_cast<float>(r.t1.size()); // short texts
}

struct Drawing {
    Drawing() { resetLayers(session->layerTable); }
    Drawing(std::initializer_list<EntityRecord> records) : Drawing()
    {
        for (const EntityRecord& r : records) add(r);
    }

    std::int32_t add(const EntityRecord& r, Stat stat = Stat::on)
    {
        const std::int32_t slot = session->store.entCount++;
        session->store.setRecord(slot, r);
        session->store.setStat(slot, stat);
        return slot;
    }
    Layer& layer(std::int32_t number) { return *session->layerTable.find(number); }

    DxfDrawing written(std::optional<std::int16_t> layer = {}) const
    {
        return dxfDrawing({session->store, session->layerTable, *session, layer, plainWidth});
    }
    std::vector<Record> records() const { return recordsOf(written().bytes); }
    std::vector<Record> entities() const { return of(records(), "ENTITIES"); }

    std::unique_ptr<Session> session = std::make_unique<Session>();
};

} // namespace mirtane::exchanged
