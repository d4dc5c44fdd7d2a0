#pragma once

// mirtane-play as a process of its own, in a folder that is removed at the end.

#include <QDir>
#include <QTemporaryDir>

#include <cstdlib>
#include <fstream>
#include <string>

namespace mirtane::fake {

struct Outcome {
    int status = -1; // of the process; -1 where it did not exit by itself
    std::string out, err;
};

inline std::string contentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class PlayProcess {
  public:
    PlayProcess() { makeFolder("home"); }

    std::string path(const std::string& name) const { return folder_.path().toStdString() + "/" + name; }
    std::string home(const std::string& name = "") const
    {
        return QDir(folder_.filePath("home")).canonicalPath().toStdString() +
               (name.empty() ? "" : "/" + name);
    }
    void makeFolder(const std::string& name) const
    {
        QDir(folder_.path()).mkpath(QString::fromStdString(name));
    }
    void removeFolder(const std::string& name) const
    {
        QDir(folder_.filePath(QString::fromStdString(name))).removeRecursively();
    }
    void write(const std::string& name, const std::string& content) const
    {
        std::ofstream(path(name), std::ios::binary) << content;
    }

    // Runs the lines on the folder "home". Shell commands may stand before it and after it; the wrapper is
    // the program that the shell runs under. Status 77: what stands before did not succeed.
    Outcome run(const std::string& lines, const std::string& before = "true",
                const std::string& after = "true", const std::string& wrapper = "") const
    {
        write("script.play", lines);
        write("run.sh", "cd '" + folder_.path().toStdString() + "'\n{ " + before + "; } || exit 77\n'" +
                            MIRTANE_PLAY + "' --home home script.play >out 2>err\nstatus=$?\n" + after +
                            "\nexit $status\n");
        const std::string line = wrapper + " sh '" + path("run.sh") + "'";
        const int status = std::system(line.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf(path("out")), contentOf(path("err"))};
    }

  private:
    QTemporaryDir folder_;
};

} // namespace mirtane::fake
