#pragma once

#include <QPageSize>
#include <QString>

#include <optional>

namespace mirtane {

// The paper of a name as the system's settings write it ("a4", "Letter").
std::optional<QPageSize> paperNamed(const QString& name);

// The paper of this system: that of PAPERSIZE, else that of the file, else A4 or letter as the user's country
// has it.
QPageSize paperOfSystem(const QString& file = QStringLiteral("/etc/papersize"));

} // namespace mirtane
