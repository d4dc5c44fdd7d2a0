#pragma once

#include "app/ports.h"

#include <QFont>
#include <QString>
#include <QStringList>

#include <string_view>

namespace mirtane {

QString textOf(std::string_view utf8);

// A text as it is measured and painted: of one that no hand has typed, the first 2,000 letters, since each
// costs.
QString drawnText(std::string_view utf8);

// The face of a name, cut at 31 characters; a face that is not there gives way without a word, and EB
// Garamond stands in for Garamond.
QFont faceOf(const QString& name);

// The fonts of this machine's screen.
class QtFonts : public Fonts {
  public:
    std::vector<std::string> names() override;
};

} // namespace mirtane
