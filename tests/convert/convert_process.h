#pragma once

// mirtane-convert as a process of its own, in a folder that is removed at the end.

#include "files/bytes.h"
#include "files/entity_record_codec.h"
#include "kind_print.h"

#include <QTemporaryDir>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace mirtane::fake {

struct Converted {
    int status = -1; // of the process; -1 where it did not exit by itself
    std::string out, err;
};

class ConvertProcess {
  public:
    std::string path(const std::string& name) const { return folder_.path().toStdString() + "/" + name; }

    std::string content(const std::string& name) const
    {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    void write(const std::string& name, const std::string& content) const
    {
        std::ofstream(path(name), std::ios::binary) << content;
    }
    void makeFolder(const std::string& name) const { std::filesystem::create_directory(path(name)); }
    bool exists(const std::string& name) const { return std::filesystem::exists(path(name)); }

    // A drawing file of these records.
    void writeDrawing(const std::string& name, const std::vector<EntityRecord>& records) const
    {
        Bytes bytes;
        ByteWriter out(bytes);
        for (const EntityRecord& r : records) writeRecord(out, r);
        write(name, std::string(bytes.begin(), bytes.end()));
    }

    // The objects of a drawing file: what is neither its header nor a layer name.
    std::vector<EntityRecord> objectsOf(const std::string& name) const
    {
        const std::string text = content(name);
        const Bytes bytes(text.begin(), text.end());
        std::vector<EntityRecord> objects;
        ByteReader in(bytes);
        EntityRecord r;
        while (in.remaining() > 0 && readRecord(in, r)) {
            if (r.kind <= Kind::angularDimension) objects.push_back(r);
        }
        return objects;
    }

    // Runs the program, in the folder, with the words as a shell takes them.
    Converted run(const std::string& words) const
    {
        return runLine("'" + std::string(MIRTANE_CONVERT) + "' " + words);
    }
    // No file may become larger than so many blocks of 512 bytes.
    Converted runWithin(int blocks, const std::string& words) const
    {
        return runLine("ulimit -f " + std::to_string(blocks) + " && '" + MIRTANE_CONVERT + "' " + words);
    }
    Converted runOnTerminal(const std::string& words) const
    {
        return runLine("script -qec \"'" + std::string(MIRTANE_CONVERT) + "' " + words + "\" seen");
    }

  private:
    Converted runLine(const std::string& line) const
    {
        const std::string all =
            "cd '" + folder_.path().toStdString() + "' && " + line + " >stdout 2>stderr </dev/null";
        const int status = std::system(all.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, content("stdout"), content("stderr")};
    }

    QTemporaryDir folder_;
};

} // namespace mirtane::fake
