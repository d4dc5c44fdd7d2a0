#pragma once

#include "model/entity_store.h"

#include <algorithm>
#include <limits>

namespace mirtane {

// Raises entCount, which goes on beyond the table but not beyond its own type.
inline void countSlots(EntityStore& store, std::int64_t more)
{
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    store.entCount = static_cast<std::int32_t>(std::min(store.entCount + more, most)); // fits, by the min
}

// The slot at entCount, which a record fills field by field. Behind the table's end a spare takes what is
// written, and is never looked at.
class OpenSlot {
  public:
    explicit OpenSlot(EntityStore& store) : store_(store) {}

    Point& p1() { return field(store_.p1, spare_.p1); }
    Point& p2() { return field(store_.p2, spare_.p2); }
    Point& p3() { return field(store_.p3, spare_.p3); }
    float& rad() { return field(store_.rad, spare_.rad); }
    double& a1() { return field(store_.a1, spare_.a1); }
    double& a2() { return field(store_.a2, spare_.a2); }
    std::int32_t& color() { return field(store_.color, spare_.color); }
    std::int16_t& layer() { return field(store_.layer, spare_.layer); }
    std::int16_t& style() { return field(store_.style, spare_.style); }
    std::string& t1() { return field(store_.t1, spare_.t1); }
    std::string& t2() { return field(store_.t2, spare_.t2); }
    std::string& dxfTag() { return field(store_.dxfTag, spareTag_); }

    // The slot is an object of that kind, "on"; the next one is open.
    void close(Kind kind)
    {
        field(store_.kind, spare_.kind) = kind;
        store_.setStat(store_.entCount, Stat::on);
        countSlots(store_, 1);
    }

  private:
    template <class Column, class Field> Field& field(Column& array, Field& spare)
    {
        return EntityStore::holds(store_.entCount) ? array[EntityStore::at(store_.entCount)] : spare;
    }

    EntityStore& store_;
    EntityRecord spare_;
    std::string spareTag_;
};

} // namespace mirtane
