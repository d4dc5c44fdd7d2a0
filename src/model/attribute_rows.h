#pragma once

// The attributes that a menu sets, the settings keep or a drawing's header carries: one row each, from which
// the menus are set and marked, and settings and headers are read and written.

#include "model/session.h"
#include "tables/controls.h"

#include <span>

namespace mirtane {

// A menu entry, and the value that it gives: a number, or a word for an attribute that is one.
struct Choice {
    ControlId entry;
    double number = 0;
    std::string_view word{};
    bool marks = true; // the entry has its check mark only while the attribute has the value
};

struct AttributeRow {
    std::string_view key; // in the settings store; empty for what is not kept there
    std::span<const Choice> choices;

    void (*choose)(Attributes& attributes, const Choice& choice);
    bool (*has)(const Attributes& attributes, const Choice& choice);

    // As text, for the settings. What makes no sense leaves the attribute as it is.
    std::string (*text)(const Attributes& attributes);
    void (*takeText)(Attributes& attributes, const std::string& text);

    // To and from slot 0; null for what is not carried there. A value that does not fit leaves the attribute
    // as it is.
    void (*fillHeader)(EntityRecord& header, const Attributes& attributes);
    void (*takeHeader)(Attributes& attributes, const EntityRecord& header);
};

std::span<const AttributeRow> attributeRows();

// Whether a click on the control sets an attribute.
bool isChoice(ControlId entry);

// Gives every attribute that the entry names the value that it names.
void choose(Attributes& attributes, ControlId entry);

// Sets the check marks of the entries. A value that no entry gives leaves none checked.
void markChoices(Controls& controls, const Attributes& attributes);

} // namespace mirtane
