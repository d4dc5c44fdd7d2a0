#include "app/dialogs/print_dialog.h"

#include "desk.h"
#include "render/redraw.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace mirtane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr ControlId typed = "frmprintset.Text1"_c;
constexpr ControlId fitted = "frmprintset.Text2"_c;
constexpr ControlId printButton = "frmprintset.Command1"_c;
constexpr ControlId cancelButton = "frmprintset.Command2"_c;
constexpr ControlId dialog = "frmprintset"_c;

// Counts pages and can be made to fail.
class TestPrinter : public RecordingPrinter {
  public:
    using RecordingPrinter::RecordingPrinter;

    bool printsToFile() const override { return toFile; }
    std::string name() const override { return called; }
    std::string folder() const override { return place; }
    std::string setup(const PageName& next) override
    {
        ++setups;
        nextFile = next.file;
        return said;
    }
    bool beginPage(const PageName& name) override
    {
        ++pages;
        lastFile = name.file;
        lastTitle = name.title;
        return RecordingPrinter::beginPage(name) && !refusesPages;
    }
    bool endPage() override
    {
        ++ends;
        if (!RecordingPrinter::endPage() || refusesEnds) return false;
        if (toFile) disk->files[lastFile] = {1, 2, 3};
        return true;
    }

    bool toFile = false, refusesPages = false, refusesEnds = false;
    int pages = 0, ends = 0, setups = 0;
    std::string lastFile, lastTitle, nextFile;
    std::string called, place, said;
    fake::MemoryDisk* disk = nullptr; // where pages become files
};

struct HasPrinter {
    TestPrinter printer;
};

// The program at its start, with a printer. What is added is selected.
class PrintDesk : public HasPrinter, public fake::Desk {
  public:
    explicit PrintDesk(float width = 12240, float height = 15840)
        : HasPrinter{TestPrinter(width, height)}, Desk({}, {}, &printer)
    {
        printer.disk = &disk;
    }

    void add(const EntityRecord& r) { Desk::add(r, Stat::sel); }

    // Fits at 12 drawing units to the inch, ten twips to the world unit.
    void addLine() { add(fake::ofLooks(fake::line({}, {1152, 0}), 0xFFFFFF)); }

    void addPoint() { add(fake::point({50, 50})); }

    void ask() { shell.click("picset"_c); }
    // The first object, at the fitted scale.
    void print()
    {
        s.store.setStat(1, Stat::sel);
        ask();
        press(printButton);
    }
    void typeOver(std::string_view keys)
    {
        shell.click(typed);
        type(keys);
    }
    bool isOpen() const { return visible(dialog); }
    Stat stat() const { return Desk::stat(1); }
    double scale() const { return s.printScale; }
};

TEST(PrintDialog, WithNothingSelectedSaysSoAndStaysAway)
{
    PrintDesk office;
    office.s.printFactor = 0.25F;
    office.s.stepNo = 2;
    office.ask();
    EXPECT_EQ(office.text("entry"_c), "Nothing selected!");
    EXPECT_FALSE(office.isOpen());
    EXPECT_EQ(office.s.stepNo, 0);
    EXPECT_EQ(office.s.printFactor, 1);
    EXPECT_EQ(office.printer.pages, 0);
}

TEST(PrintDialog, ShowsTheFittedValueInBothBoxes)
{
    PrintDesk office;
    office.addLine();
    office.ask();
    EXPECT_TRUE(office.isOpen());
    EXPECT_EQ(office.text(typed), "12");
    EXPECT_EQ(office.text(fitted), "12");
    EXPECT_EQ(office.s.controls.focus, typed);
    EXPECT_EQ(office.s.controls["frmprintset.Label1"_c].caption,
              "The fitted scale value is displayed below. Click on the text box to enter a new value. "
              "This value must be greater than the fitted value.");
    EXPECT_EQ(office.printer.pages, 0);
}

struct FittedRow {
    float width;
    const char* shown;
};

TEST(PrintDialog, ShowsSevenDigitsWithAPoint)
{
    const FittedRow rows[] = {{770, "8.020833"}, {1153, "12.01042"}, {96, "1"}, {1.2e10F, "1.25E+08"}};
    for (const FittedRow& row : rows) {
        PrintDesk office;
        office.add(fake::line({}, {row.width, 0}));
        office.ask();
        EXPECT_EQ(office.text(typed), row.shown);
        EXPECT_EQ(office.text(fitted), row.shown);
    }
}

TEST(PrintDialog, TheFittedValueIsSelectedAndTypedOver)
{
    for (const char* keys : {"24", "13,5", "1000"}) {
        PrintDesk office;
        office.addLine();
        office.ask();
        EXPECT_EQ(office.s.controls[typed].anchor, 0);
        EXPECT_EQ(office.s.controls[typed].caret, 2);
        office.type(keys);
        std::string expected = keys;
        std::ranges::replace(expected, ',', '.');
        EXPECT_EQ(office.text(typed), expected);
        office.type("\r");
        EXPECT_EQ(office.printer.pages, 1) << keys;
        EXPECT_LT(office.s.printFactor, 1) << keys;
    }
}

TEST(PrintDialog, BackspaceTakesTheFittedValueAwayWhole)
{
    PrintDesk office;
    office.addLine();
    office.ask();
    office.type("\b");
    EXPECT_EQ(office.text(typed), "");
    EXPECT_EQ(office.text(fitted), "12");
}

TEST(PrintDialog, TheFittedValuePrintsAtTheFittedSize)
{
    PrintDesk office;
    office.addLine();
    office.ask();
    office.pic1.takeOps();
    office.press(printButton);
    EXPECT_EQ(office.printer.pages, 1);
    EXPECT_EQ(office.printer.ends, 1);
    EXPECT_EQ(office.s.printFactor, 1);
    EXPECT_NEAR(office.scale(), 10, 1e-5);
    EXPECT_FALSE(office.isOpen());
    EXPECT_EQ(office.stat(), Stat::on);
    EXPECT_EQ(office.s.controls.focus, "pic1"_c);
    EXPECT_FALSE(fake::marks(fake::opsOn(office.pic1)).empty()) << "the surface was not repainted";
}

TEST(PrintDialog, TwiceTheValueHalvesThePicture)
{
    PrintDesk office;
    office.addLine();
    office.ask();
    office.typeOver("24");
    office.press(printButton);
    EXPECT_FLOAT_EQ(office.s.printFactor, 0.5F);
    EXPECT_NEAR(office.scale(), 5, 1e-5);
    EXPECT_EQ(office.printer.pages, 1);
}

TEST(PrintDialog, AFactorNeverCarriesOverToTheNextRun)
{
    PrintDesk office;
    office.addLine();
    office.ask();
    office.typeOver("24");
    office.press(printButton);
    office.s.store.setStat(1, Stat::sel);
    office.ask();
    EXPECT_EQ(office.s.printFactor, 1);
    EXPECT_EQ(office.text(typed), "12");
    office.press(printButton);
    EXPECT_NEAR(office.scale(), 10, 1e-5);
}

TEST(PrintDialog, RefusesSilentlyWhatIsEmptyOrBelowTheFittedValue)
{
    for (const char* keys : {"", "11.99999", "0", "-24", ".", "-"}) {
        PrintDesk office;
        office.addLine();
        office.ask();
        const std::string entry = office.text("entry"_c);
        office.typeOver(keys);
        office.press(printButton);
        EXPECT_TRUE(office.isOpen()) << keys;
        office.type("\r");
        EXPECT_TRUE(office.isOpen()) << keys;
        EXPECT_EQ(office.printer.pages, 0) << keys;
        EXPECT_EQ(office.stat(), Stat::sel) << keys;
        EXPECT_EQ(office.text("entry"_c), entry) << keys;
    }
}

TEST(PrintDialog, AClickOnTheBoxEmptiesItAndNotTheFittedValue)
{
    PrintDesk office;
    office.addLine();
    office.ask();
    office.press(typed);
    EXPECT_EQ(office.text(typed), "");
    EXPECT_EQ(office.text(fitted), "12");
}

TEST(PrintDialog, KeysThatAreNoPartOfANumberAreDroppedAndACommaIsAPoint)
{
    PrintDesk office;
    office.addLine();
    office.ask();
    office.typeOver("a-1x2, 5e+3");
    EXPECT_EQ(office.text(typed), "-12.53");
    office.type("\b\b");
    EXPECT_EQ(office.text(typed), "-12.");
}

TEST(PrintDialog, EnterPrintsAsTheButtonDoes)
{
    PrintDesk office;
    office.addLine();
    office.ask();
    office.typeOver("48\r");
    EXPECT_EQ(office.printer.pages, 1);
    EXPECT_FALSE(office.isOpen());
    EXPECT_NEAR(office.scale(), 2.5, 1e-5);
}

TEST(PrintDialog, CancelAndTheCloseButtonDropTheSelection)
{
    for (const bool byFrame : {false, true}) {
        PrintDesk office;
        office.addLine();
        office.ask();
        office.pic1.takeOps();
        if (byFrame) {
            office.shell.closeForm(dialog);
        } else {
            office.press(cancelButton);
        }
        EXPECT_FALSE(office.isOpen());
        EXPECT_EQ(office.stat(), Stat::on);
        EXPECT_EQ(office.printer.pages, 0);
        EXPECT_FALSE(fake::marks(fake::opsOn(office.pic1)).empty()) << "the surface was not repainted";
    }
}

TEST(PrintDialog, ASinglePointPrintsAtTheLastScaleWhichHoldsForAFactorOfOne)
{
    PrintDesk office;
    office.addPoint();
    office.ask();
    EXPECT_EQ(office.text(typed), "0");
    office.press(printButton);
    EXPECT_EQ(office.printer.pages, 1);
    EXPECT_EQ(office.s.printFactor, 1); // 0/0 leaves it
    EXPECT_EQ(office.scale(), 1);
}

TEST(PrintDialog, APrinterOfNoSizePrintsNothingYetDropsTheSelection)
{
    PrintDesk office(0, 0);
    office.addLine();
    office.ask();
    office.typeOver("1000");
    office.pic1.takeOps();
    office.press(printButton);
    EXPECT_EQ(office.printer.pages, 0);
    EXPECT_EQ(office.stat(), Stat::on);
    EXPECT_FALSE(office.isOpen());
    EXPECT_FALSE(fake::marks(fake::opsOn(office.pic1)).empty()) << "the surface was not repainted";
}

TEST(PrintDialog, WithoutAPrinterNothingFails)
{
    fake::Desk desk;
    desk.drawLine(100, 100, 1000, 100);
    desk.s.store.setStat(1, Stat::sel);
    desk.press("prtstp"_c);
    desk.press("picset"_c);
    setText(desk.s.controls[typed], "1000");
    desk.press(printButton);
    EXPECT_EQ(desk.stat(1), Stat::on);
}

TEST(PrintDialog, AFilePageIsNamedAfterTheDrawingAndShown)
{
    PrintDesk office;
    office.printer.toFile = true;
    office.s.drawingName = "house.mtd";
    office.addLine();
    office.ask();
    office.press(printButton);
    EXPECT_EQ(office.printer.lastFile, std::string(fake::home) + "/house.pdf");
    EXPECT_EQ(office.text("entry"_c), "house.pdf");
}

TEST(PrintDialog, APageHasTheDrawingsNameForItsTitle)
{
    for (const bool toFile : {false, true}) {
        PrintDesk office;
        office.printer.toFile = toFile;
        office.s.drawingName = "maison \u00E0 c\u00F4t\u00E9.mtd";
        office.addLine();
        office.print();
        EXPECT_EQ(office.printer.lastTitle, "maison \u00E0 c\u00F4t\u00E9.mtd") << toFile;
    }
}

// The drawing "house.mtd", printed so often beside the files that are there.
struct PageRow {
    std::vector<const char*> there;
    std::vector<const char*> written;
};

TEST(PrintDialog, AFilePageTakesThePlaceOfNoFileButItsOwn)
{
    const PageRow rows[] = {
        {{}, {"house.pdf", "house.pdf"}},
        {{"house.pdf"}, {"house-2.pdf", "house-2.pdf", "house-2.pdf"}},
        {{"house.pdf", "house-2.pdf", "house-3.pdf"}, {"house-4.pdf"}},
        {{"house.pdf", "house-3.pdf"}, {"house-2.pdf", "house-2.pdf"}},
        {{"house-2.pdf"}, {"house.pdf", "house.pdf"}},
        {{"house.mtd", "barn.pdf"}, {"house.pdf"}},
    };
    const std::string folder = std::string(fake::home) + "/";
    for (const PageRow& row : rows) {
        PrintDesk office;
        office.printer.toFile = true;
        office.s.drawingName = "house.mtd";
        office.addLine();
        for (const char* name : row.there) office.disk.files[folder + name] = {7};
        for (const char* name : row.written) {
            office.print();
            EXPECT_EQ(office.printer.lastFile, folder + name);
            EXPECT_EQ(office.text("entry"_c), name);
        }
        for (const char* name : row.there) EXPECT_EQ(office.disk.files[folder + name], Bytes{7}) << name;
    }
}

TEST(PrintDialog, AFilePageOfAnotherFolderIsAnotherFile)
{
    PrintDesk office;
    office.printer.toFile = true;
    office.folders.folders.insert("/plans");
    office.addLine();
    office.print();
    office.s.drawings.last = "/plans";
    office.disk.files["/plans/untitled.pdf"] = {7};
    office.print();
    EXPECT_EQ(office.printer.lastFile, "/plans/untitled-2.pdf");
}

// Whatever went elsewhere in the meantime.
TEST(PrintDialog, AFilePageGoesToTheFolderOfTheDrawing)
{
    struct Row {
        const char* what;
        const char* own;
        const char* last;
        const char* chosen;
        const char* written;
    };
    const Row rows[] = {
        {"a part was saved elsewhere", "/plans/north", "/parts", "", "/plans/north/mill.pdf"},
        {"nothing was", "/parts", "/parts", "", "/parts/mill.pdf"},
        {"the user chose another", "/plans/north", "/parts", "/plots", "/plots/mill.pdf"},
        {"what the user chose went", "/plans/north", "/parts", "/gone", "/plans/north/mill.pdf"},
        {"the drawing's own went", "/gone", "/parts", "", "/parts/mill.pdf"},
        {"it has none yet", "", "/parts", "", "/parts/mill.pdf"},
        {"the root", "/", "/parts", "", "/mill.pdf"},
    };
    for (const Row& row : rows) {
        PrintDesk office;
        office.folders.folders.insert({"/plans/north", "/parts", "/plots"});
        office.printer.toFile = true;
        office.printer.place = row.chosen;
        office.s.drawingName = "mill.mtd";
        office.s.drawingFolder = row.own;
        office.s.drawings.last = row.last;
        office.addLine();
        office.ask();
        EXPECT_EQ(office.caption("frmprintset.Label2"_c), std::string("Goes to the file ") + row.written)
            << row.what;
        office.press(printButton);
        EXPECT_EQ(office.printer.lastFile, row.written) << row.what;
    }
}

TEST(PrintDialog, AFilePageThatFailedIsNoneOfThisSession)
{
    PrintDesk office;
    office.printer.toFile = true;
    office.printer.refusesEnds = true;
    office.addLine();
    office.print();
    office.printer.refusesEnds = false;
    office.disk.files["/home/user/untitled.pdf"] = {7}; // came in the meantime
    office.print();
    EXPECT_EQ(office.text("entry"_c), "untitled-2.pdf");
}

TEST(PrintDialog, AFilePageThatFailsIsToldAndLosesNothing)
{
    for (const bool atEnd : {false, true}) {
        PrintDesk office;
        office.printer.toFile = true;
        (atEnd ? office.printer.refusesEnds : office.printer.refusesPages) = true;
        office.addLine();
        office.ask();
        office.press(printButton);
        EXPECT_EQ(office.text("entry"_c), "File not saved!");
        EXPECT_EQ(office.stat(), Stat::on);
        EXPECT_FALSE(office.isOpen());
    }
}

TEST(PrintDialog, PaperIsNotNamedInTheEntry)
{
    PrintDesk office;
    office.addLine();
    setText(office.s.controls["entry"_c], "as it was");
    office.ask();
    office.press(printButton);
    EXPECT_EQ(office.text("entry"_c), "as it was");
}

TEST(PrintDialog, PrinterSetupLeavesThePageAsItWasAtTheStart)
{
    PrintDesk office;
    office.addLine();
    office.press("prtstp"_c);
    EXPECT_EQ(office.printer.setups, 1);
    EXPECT_EQ(office.s.pageWidth, 12240);
    EXPECT_EQ(office.s.pageHeight, 15840);
}

TEST(PrintDialog, PrinterSetupIsToldInTheEntry)
{
    PrintDesk office;
    office.printer.toFile = true;
    office.folders.folders.insert("/plans");
    office.s.drawings.last = "/plans";
    office.s.drawingName = "mill.mtd";
    office.disk.files["/plans/mill.pdf"] = {7};
    office.printer.said = "PDF files go to /plots";
    office.press("prtstp"_c);
    EXPECT_EQ(office.text("entry"_c), "PDF files go to /plots");
    EXPECT_EQ(office.printer.nextFile, "/plans/mill-2.pdf");
}

TEST(PrintDialog, PrinterSetupIsToldAlsoWhereThereIsNothingToSetUp)
{
    PrintDesk office; // its printer has nothing to say
    office.press("prtstp"_c);
    EXPECT_EQ(office.text("entry"_c), "There is no printer to set up");
    fake::Desk none;
    none.press("prtstp"_c);
    EXPECT_EQ(none.text("entry"_c), "There is no printer to set up");
}

TEST(PrintDialog, TellsWhereThePageGoes)
{
    struct Row {
        const char* what;
        bool toFile;
        const char* printer;
        const char* place;
        const char* told;
    };
    const Row rows[] = {
        {"a printer", false, "Laser 2", "", "Goes to the printer Laser 2"},
        {"a printer without a name", false, "", "", ""},
        {"a file", true, "", "", "Goes to the file /plans/mill-2.pdf"},
        {"a file where the user wants it", true, "", "/plots", "Goes to the file /plots/mill.pdf"},
        {"a folder that went", true, "", "/gone", "Goes to the file /plans/mill-2.pdf"},
        {"the root", true, "", "/", "Goes to the file /mill.pdf"},
    };
    for (const Row& row : rows) {
        PrintDesk office;
        office.folders.folders.insert({"/plans", "/plots"});
        office.s.drawings.last = "/plans";
        office.s.drawingName = "mill.mtd";
        office.disk.files["/plans/mill.pdf"] = {7};
        office.printer.toFile = row.toFile;
        office.printer.called = row.printer;
        office.printer.place = row.place;
        office.addLine();
        office.ask();
        const std::string told = office.caption("frmprintset.Label2"_c);
        EXPECT_EQ(told, row.told) << row.what;
        office.press(printButton);
        EXPECT_TRUE(!row.toFile || "Goes to the file " + office.printer.lastFile == told) << row.what;
    }
}

TEST(PrintDialog, TellsThatThereIsNoPrinter)
{
    PrintDesk office(0, 0);
    office.addLine();
    office.ask();
    EXPECT_EQ(office.caption("frmprintset.Label2"_c), "There is no printer");
}

TEST(PrintDialog, ThePictureIsThePageThatComesOut)
{
    for (const char* value : {"12", "17.5", "100000"}) {
        PrintDesk office;
        office.addLine();
        office.addPoint();
        office.ask();
        office.typeOver(value);
        std::vector<PrintOp> picture = pagePreview(office.s);
        office.type("\r");
        std::vector<PrintOp> page = office.printer.printed();
        ASSERT_FALSE(page.empty()) << value;
        EXPECT_EQ(page.back().name, "endPage");
        page.pop_back();
        EXPECT_EQ(picture, page) << value;
    }
}

TEST(PrintDialog, ThePictureOfASinglePointIsThePageThatComesOut)
{
    PrintDesk office;
    office.s.printScale = 8;
    office.addPoint();
    office.ask();
    office.typeOver("4");
    const std::vector<PrintOp> picture = pagePreview(office.s);
    EXPECT_EQ(office.s.printScale, 8); // looking changes nothing
    office.type("\r");
    std::vector<PrintOp> page = office.printer.printed();
    page.pop_back();
    EXPECT_EQ(picture, page);
}

TEST(PrintDialog, ThePictureIsEmptyWhileTheValueIsRefused)
{
    PrintDesk office;
    office.addLine();
    office.ask();
    office.typeOver("");
    EXPECT_THAT(pagePreview(office.s), IsEmpty());
    office.type("11");
    EXPECT_THAT(pagePreview(office.s), IsEmpty());
    office.type("0");
    EXPECT_FALSE(pagePreview(office.s).empty());
}

TEST(PrintDialog, LeavesNothingOfAFunctionHalfBegun)
{
    PrintDesk office;
    office.addLine();
    office.s.store.setStat(1, Stat::sel);
    office.shell.click("Command20"_c);
    office.shell.click("freecurs"_c);
    office.s.textLength = 3;
    office.s.workAngle = selectionFollowsPointer;
    office.s.orthoAngle = 1;
    office.shell.click("picset"_c);
    EXPECT_EQ(office.s.textLength, 0);
    EXPECT_EQ(office.s.workAngle, 0);
    EXPECT_EQ(office.s.orthoAngle, office.s.orthoAngleSaved);
    EXPECT_EQ(office.s.store.stat[1], Stat::sel);
}

TEST(PrintDialog, PageGoesWhereTheDialogWouldSave)
{
    PrintDesk office;
    office.printer.toFile = true;
    office.s.drawings = {fake::home, "/gone"};
    office.addLine();
    office.shell.click("picset"_c);
    office.shell.click(printButton);
    EXPECT_EQ(office.printer.lastFile, std::string(fake::home) + "/untitled.pdf");
}

} // namespace
} // namespace mirtane
