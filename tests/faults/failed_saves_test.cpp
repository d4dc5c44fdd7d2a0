// Every call that a save makes of the machine fails in turn: what was there before stays, nothing is left
// beside it, and the program says so and goes on. Once no call is left to fail, the same save succeeds.

#include "failing_calls.h"
#include "platform/qt/page_painter.h"
#include "play_process.h"
#include "theatre.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>

#include <unistd.h>

namespace mirtane {
namespace {

using fake::contentOf;
using fake::Failing;
using fake::FailingCalls;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* before = "what was there before";

struct Saved {
    const char* file;
    const char* makes; // what there is to save, beside two lines
    bool selected;     // only what is selected is saved
    const char* saves;
    const char* closes; // what is up after a save that failed
    const char* notSaved;
};

void PrintTo(const Saved& kind, std::ostream* out)
{
    *out << kind.file;
}

#define SELECTS "press Command19\nclick 900 900\nclick 1200 1200\ncancel 0 0\n"
constexpr Saved kinds[] = {
    {"house.mtd", "", false, "press fil7\nput frmfile.Text1 house\nenter", "press frmfile.Command2",
     "Drawing not saved!"},
    {"part.mtd", "", true, "press fil9\nput frmfile.Text1 part\nenter", "press frmfile.Command2",
     "Drawing not saved!"},
    {"house.dxf", "", true, "press dd4\nput frmfile.Text1 house\nenter", "press frmfile.Command2",
     "File not saved!"},
    {"chair.mta", SELECTS "press ass7\ntype chair\nenter\nclick 1000 1010\n", false,
     "press ass9\npick List1 =chair\npress frmfile.Command1", "press frmfile.Command2", "File not saved!"},
    {"strokes.mth", SELECTS "press ht5\ntype strokes\nenter\nclick 1000 990\nclick 1031 1020\n", false,
     "press ht7\npick List1 =strokes\npress frmfile.Command1", "press frmfile.Command2", "File not saved!"},
    {"wall.mtm", SELECTS "press ml3\ntype wall\nenter\nclick 1000 1000\n", false,
     "press ml5\npick List1 =wall\npress frmfile.Command1", "press frmfile.Command2", "File not saved!"},
    {"untitled.pdf", "", true, "press picset\npress frmprintset.Command1", "", "File not saved!"},
};
#undef SELECTS

// What can fail with no harm: the bytes are on the disk, and in their place or not at all.
bool mayFail(const std::string& call)
{
    return call == "flock" || call.ends_with(" folder");
}

// Then the file is written in place, as no new one can be put there.
bool forbids(const std::string& call, int error)
{
    const bool isRight = error == EROFS || error == EACCES;
    return call == "fchmod" || (isRight && (call == "open" || call == "rename"));
}

class FailedSaves : public testing::TestWithParam<Saved> {
  protected:
    FailedSaves()
    {
        qputenv("XDG_STATE_HOME", QByteArray::fromStdString(state())); // where pages have their copies
        EXPECT_EQ(theatre_.playAll("press freecurs\nclick 1000 1000\nclick 1100 1000\ncancel 0 0\n"
                                   "click 1000 1010\nclick 1100 1010\ncancel 0 0\n"),
                  "");
        EXPECT_EQ(theatre_.playAll(GetParam().makes), "");
        EXPECT_EQ(theatre_.playAll("press Command1"), "");
        saveOver({}); // a page takes the place of none but its own
        whole_ = contentOf(path());
        EXPECT_GT(whole_.size(), 50U);
    }

    std::string path() const { return theatre_.home() + "/" + GetParam().file; }
    std::string state() const { return theatre_.home() + "/state"; }
    QStringList names() const
    {
        QStringList names =
            QDir(theatre_.folder.path())
                .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
        names.removeAll("state");
        return names;
    }
    // The files that are kept in the state folder.
    std::vector<std::string> kept() const
    {
        std::vector<std::string> found;
        QDirIterator at(QString::fromStdString(state()), QDir::Files | QDir::Hidden,
                        QDirIterator::Subdirectories);
        while (at.hasNext()) found.push_back(at.next().toStdString());
        return found;
    }

    // A page tells when it was made.
    bool isWhole(const std::string& content) const
    {
        if (!path().ends_with(".pdf")) return content == whole_;
        return content.starts_with("%PDF-") && content.ends_with("%%EOF\n");
    }

    // The calls of a save over a file. The dialog is closed again.
    std::vector<std::string> save(const Failing& failing)
    {
        std::ofstream(path(), std::ios::binary) << before;
        return saveOver(failing);
    }

    std::vector<std::string> saveOver(const Failing& failing)
    {
        Session& s = *theatre_.session;
        if (GetParam().selected) changeStat(s.store, Stat::on, Stat::sel);
        s.controls["entry"_c].text = "";
        const FailingCalls calls(theatre_.home(), failing);
        EXPECT_EQ(theatre_.playAll(GetParam().saves), "");
        refused_ = s.controls["entry"_c].text == GetParam().notSaved;
        EXPECT_EQ(s.controls["frmfile"_c].visible, refused_ && *GetParam().closes != '\0');
        EXPECT_EQ(theatre_.playAll(refused_ ? GetParam().closes : ""), "");
        failed_ = calls.failed();
        return calls.calls();
    }

    void expectOldOrNew()
    {
        const std::string now = contentOf(path());
        EXPECT_TRUE(refused_ ? now == before : isWhole(now)) << now.size() << " bytes";
        expectNothingElse();
    }

    virtual void expectKept() { expectOldOrNew(); }

    void expectNothingElse()
    {
        EXPECT_EQ(names(), QStringList{GetParam().file}) << "nothing is left beside it";
        EXPECT_THAT(kept(), IsEmpty());
        EXPECT_GE(theatre_.session->store.entCount, 3) << "the work is still there";
    }

    // Call by call, until there is none left to fail.
    template <class Expect> void failEachInTurn(int error, bool lasting, Expect expect)
    {
        constexpr int endless = 100;
        for (int number = 1; number < endless; ++number) {
            save({number, error, lasting});
            if (failed_.empty()) {
                EXPECT_GT(number, 5) << "a save is at least an open, a write, a flush, a close and a rename";
                EXPECT_FALSE(refused_);
                return expectOldOrNew();
            }
            SCOPED_TRACE(failed_ + ", call " + std::to_string(number) + ": " + std::strerror(error));
            expect();
            expectKept();
        }
        ADD_FAILURE() << "the save has no end";
    }

    PdfPrinter pdf_{QPageSize(QPageSize::A4)};
    fake::Theatre theatre_{&pdf_};
    std::string whole_;
    std::string failed_; // the call
    bool refused_ = false;
};

TEST_P(FailedSaves, EachCallInTurnLeavesTheOldFileAndIsTold)
{
    for (const int error : {ENOSPC, EDQUOT, EROFS, EIO, EACCES}) {
        for (const bool lasting : {false, true}) {
            const auto told = [&] {
                const bool goesOn = forbids(failed_, error) || failed_ == "flock";
                EXPECT_EQ(refused_, goesOn ? lasting : !mayFail(failed_));
            };
            failEachInTurn(error, lasting, told);
        }
    }
}

TEST_P(FailedSaves, ASignalInAnyCallHarmsNothing)
{
    failEachInTurn(EINTR, false, [&] { EXPECT_FALSE(refused_ && failed_ != "rename"); });
}

TEST_P(FailedSaves, AWriteThatTakesHalfIsGoneOnWith)
{
    failEachInTurn(0, false, [&] { EXPECT_FALSE(refused_); });
}

// In the order that survives a loss of power: the bytes first, then the name, then the folder that holds it.
TEST_P(FailedSaves, WhatIsWrittenIsOnTheDiskBeforeItTakesTheOldOnesPlace)
{
    std::vector<std::string> calls = save({});
    std::erase_if(calls, [](const std::string& call) { return call == "fchmod" || call == "flock"; });
    EXPECT_THAT(calls, ElementsAre("open", "write", "fsync", "close", "rename", "open folder", "fsync folder",
                                   "close folder"));
}

// A file with two names is written in place, since a new one would take one of them alone.
class FailedSavesInPlace : public FailedSaves {
  protected:
    FailedSavesInPlace()
    {
        EXPECT_TRUE(QDir().mkpath(QString::fromStdString(state() + "/mirtane")));
        EXPECT_EQ(link(path().c_str(), secondName().c_str()), 0);
    }

    std::string secondName() const { return beside_.filePath("second").toStdString(); }

    // The old bytes are in the file, or where nothing can be written any more, whole beside it.
    void expectKept() override
    {
        EXPECT_EQ(contentOf(secondName()), contentOf(path()));
        if (kept().empty()) return expectOldOrNew();
        EXPECT_TRUE(refused_);
        ASSERT_EQ(kept().size(), 1U);
        EXPECT_EQ(contentOf(kept()[0]), before);
        QFile::remove(QString::fromStdString(kept()[0]));
    }

    QTemporaryDir beside_;
};

TEST_P(FailedSavesInPlace, EachCallInTurnLeavesTheOldBytesAndIsTold)
{
    for (const int error : {ENOSPC, EDQUOT, EROFS, EIO, EACCES}) {
        for (const bool lasting : {false, true}) {
            failEachInTurn(error, lasting, [&] {
                const bool harmless = failed_ == "close folder";
                const bool goesOn = harmless || failed_ == "flock";
                EXPECT_EQ(refused_, goesOn ? lasting : true);
                EXPECT_TRUE(lasting || kept().empty()) << "one call alone keeps nothing from being put back";
            });
        }
    }
}

TEST_P(FailedSavesInPlace, ASignalInAnyCallHarmsNothing)
{
    failEachInTurn(EINTR, false, [&] { EXPECT_FALSE(refused_ && failed_ != "rename"); });
}

TEST_P(FailedSavesInPlace, AWriteThatTakesHalfIsGoneOnWith)
{
    failEachInTurn(0, false, [&] { EXPECT_FALSE(refused_); });
}

// The old bytes stand in the state folder, name and all, before the first of them is written over.
TEST_P(FailedSavesInPlace, TheOldBytesAreOnTheDiskBeforeTheNewOnesAreWritten)
{
    std::vector<std::string> calls = save({});
    std::erase(calls, "flock");
    EXPECT_THAT(calls,
                ElementsAre("open what is there", "open", "write", "fsync", "close", "rename", "open folder",
                            "fsync folder", "close folder", "write", "ftruncate", "fsync", "close"));
}

std::string nameOf(const testing::TestParamInfo<Saved>& kind)
{
    std::string name = kind.param.file;
    std::ranges::replace(name, '.', '_');
    return name;
}

constexpr Saved aFew[] = {kinds[0], kinds[2], std::end(kinds)[-1]};

INSTANTIATE_TEST_SUITE_P(Of, FailedSavesInPlace, testing::ValuesIn(aFew), nameOf);
INSTANTIATE_TEST_SUITE_P(Of, FailedSaves, testing::ValuesIn(kinds), nameOf);

} // namespace
} // namespace mirtane
