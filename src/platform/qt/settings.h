#pragma once

#include "app/ports.h"

#include <QSettings>

namespace mirtane {

// The settings as the platform keeps them for each user, or in a file of their own.
class QtSettings : public SettingsStore {
  public:
    // The per-user store.
    QtSettings();
    // An ini file at that path (UTF-8); it is made by the first write.
    explicit QtSettings(const std::string& iniFile);

    std::map<std::string, std::string> read() override;
    // Flushed to the disk when it returns. A store that can't be written stays as it was.
    void write(const std::map<std::string, std::string>& values) override;

  private:
    QSettings store_;
};

} // namespace mirtane
