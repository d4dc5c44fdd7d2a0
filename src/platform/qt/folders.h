#pragma once

#include "app/ports.h"

namespace mirtane {

// The folders of this machine.
class QtFolders : public Folders {
  public:
    std::vector<std::string> files(const std::string& folder, const std::string& extension) override;
    std::vector<std::string> subfolders(const std::string& folder) override;
    std::vector<std::string> drives() override;
    bool exists(const std::string& folder) override;
};

} // namespace mirtane
