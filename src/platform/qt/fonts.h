#pragma once

#include "app/ports.h"

#include <QFont>
#include <QSet>
#include <QString>
#include <QStringList>

#include <string_view>

namespace mirtane {

QString textOf(std::string_view utf8);

// A text as it is measured and painted: of one that no hand has typed, the first 2,000 letters, since each
// costs.
QString drawnText(std::string_view utf8);

// What is asked for in turn for a face, where these are installed. Junicode, under either of its names,
// stands in for Garamond: of the faces that are like it, it is as large, has figures that all stand on the
// line, and a 1 that no one reads as an I.
QStringList familiesFor(const QString& family, const QSet<QString>& installed);

// The face of a name, cut at 31 characters; a face that is not there gives way without a word.
QFont faceOf(const QString& name);

// The fonts of this machine's screen.
class QtFonts : public Fonts {
  public:
    std::vector<std::string> names() override;
};

} // namespace mirtane
