#pragma once

#include "app/ports.h"
#include "platform/posix/disk.h"

namespace mirtane {

// The settings as a file for each user, or in a file of their own: text, a line for each key of a section.
class QtSettings : public SettingsStore {
  public:
    // The per-user store.
    QtSettings();
    // An ini file at that path (UTF-8); it is made by the first write.
    explicit QtSettings(std::string iniFile, PosixDisk disk = PosixDisk());

    // What is no line of a key, or in no section of ours, is passed over.
    std::map<std::string, std::string> read() override;
    // Flushed to the disk when it returns; keys that are not given keep their values. A store that can't be
    // written stays as it was.
    void write(const std::map<std::string, std::string>& values) override;

  private:
    std::string path_;
    PosixDisk disk_;
};

} // namespace mirtane
