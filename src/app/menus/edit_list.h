#pragma once

#include "app/app.h"

namespace mirtane {

// The edit functions, by a row of the list or a button of the Edits form. Without a selection they only say
// so.
void startEdit(App& app, const std::string& name);
void startEditFromRow(App& app, int row);
void startEditFromButton(App& app, ControlId button);

// The two buttons of the Edits form that start nothing.
void deselectFromButton(App& app, ControlId);
void closeEditsForm(App& app, ControlId);

// The key that deletes, on the drawing: as "Delete" of the Edits form. A text that is being edited is not
// what is selected.
void deleteFromKey(App& app);

} // namespace mirtane
