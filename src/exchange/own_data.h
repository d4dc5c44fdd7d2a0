#pragma once

// What a file of ours says of an object beyond what the format has a place for: the object itself, and how
// the groups stood that it was written with. As long as they stand so, no one has changed the object since,
// and it comes back as it was.

#include "exchange/dxf_list.h"
#include "exchange/made.h"
#include "exchange/pairs_out.h"

#include <optional>
#include <string>
#include <vector>

namespace mirtane {

// A group that a record was written with.
struct KeptGroup {
    int code;
    double value;
};
using KeptGroups = std::vector<KeptGroup>;

// Of a text or a dimension, what a record of it says: group 1.
std::string wordsShown(const Made& made);

// Whether the text of a leader is a record of its own, behind the leader's.
bool isAnnotated(const Made& leader);

// Behind a record's last group. Of an object, its looks are not written.
void writeOwnData(PairsOut& out, const Made& made, const KeptGroups& kept);
// For a record that is a part of the object before it.
void writeOwnPart(PairsOut& out, const KeptGroups& kept);

// Of a layer: its name, and the name that was written for it.
void writeOwnLayer(PairsOut& out, const std::string& name, const std::string& written);
// The first of the two, if the second is still there.
std::optional<std::string> ownLayerName(const DxfRecord& record, const DxfList& list);

// Whether a record of words was written for a text of ours, which others may have changed since: its height
// is that of the capitals.
bool isOfOwnText(const DxfRecord& record, const DxfList& list);

// The object that the first of the records is, if it is one of ours and unchanged: all but its look; and how
// many of the records it takes.
struct OwnObject {
    Made made;
    std::size_t records = 1;
};
std::optional<OwnObject> ownObject(std::span<const DxfRecord> records, const DxfList& list);

} // namespace mirtane
