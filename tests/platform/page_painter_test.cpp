#include "platform/qt/page_painter.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

namespace mirtane {
namespace {

constexpr float pageWidth = 12240;
constexpr float pageHeight = 15840;

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A letter page as a picture with so many pixels to the inch.
class Picture {
  public:
    explicit Picture(int perInch)
        : image_(static_cast<int>(8.5 * perInch), 11 * perInch,
                 QImage::Format_RGB32), // whole for an even number
          pixelsPerTwip_(perInch / 1440.0)
    {
        image_.fill(Qt::white);
    }

    template <class Draw> void draw(Draw draw)
    {
        PicturePrinter printer(image_, pageWidth, pageHeight, pixelsPerTwip_);
        ASSERT_TRUE(printer.beginPage({}));
        draw(printer);
        ASSERT_TRUE(printer.endPage());
    }

    // What is dark, in twips.
    QRectF dark() const
    {
        QRect found;
        for (int y = 0; y < image_.height(); ++y) {
            for (int x = 0; x < image_.width(); ++x) {
                if (qGray(image_.pixel(x, y)) < 160) found |= QRect(x, y, 1, 1);
            }
        }
        const double twips = 1 / pixelsPerTwip_;
        return {found.x() * twips, found.y() * twips, found.width() * twips, found.height() * twips};
    }

    // Where the row at y turns dark and light again, in twips.
    std::vector<double> edgesAlong(double y) const
    {
        std::vector<double> edges;
        const int row = static_cast<int>(y * pixelsPerTwip_);
        for (int x = 1; x < image_.width(); ++x) {
            const bool before = qGray(image_.pixel(x - 1, row)) < 160;
            if ((qGray(image_.pixel(x, row)) < 160) != before) edges.push_back(x / pixelsPerTwip_);
        }
        return edges;
    }

  private:
    QImage image_;
    double pixelsPerTwip_;
};

TEST(PagePicture, HasEverythingWhereThePageHasIt)
{
    Picture picture(144); // ten twips to the pixel
    picture.draw([](Printer& p) {
        p.pen(0, 1);
        p.line(1000, 2000, 5000, 2000);
        p.circle(6000, 8000, 1000);
    });
    const QRectF dark = picture.dark();
    EXPECT_NEAR(dark.left(), 1000, 15);
    EXPECT_NEAR(dark.right(), 7000, 15);
    EXPECT_NEAR(dark.top(), 2000, 15);
    EXPECT_NEAR(dark.bottom(), 9000, 15);
}

TEST(PagePicture, AnArcRunsCounterClockwise)
{
    Picture picture(144);
    picture.draw([](Printer& p) {
        p.pen(0, 1);
        p.arc(6000, 8000, 1000, 0, 1.5707963);
    });
    const QRectF dark = picture.dark();
    EXPECT_NEAR(dark.left(), 6000, 15);
    EXPECT_NEAR(dark.right(), 7000, 15);
    EXPECT_NEAR(dark.top(), 7000, 15);
    EXPECT_NEAR(dark.bottom(), 8000, 15);
}

TEST(PagePicture, AnArcMayPassThroughAngleNought)
{
    Picture picture(144);
    picture.draw([](Printer& p) {
        p.pen(0, 1);
        p.arc(6000, 8000, 1000, 4.712389, 1.5707963);
    });
    const QRectF dark = picture.dark();
    EXPECT_NEAR(dark.left(), 6000, 15);
    EXPECT_NEAR(dark.right(), 7000, 15);
    EXPECT_NEAR(dark.top(), 7000, 15);
    EXPECT_NEAR(dark.bottom(), 9000, 15);
}

TEST(PagePicture, AnArcOfAWholeTurnOrNearlySoIsDrawn)
{
    for (const double start : {0.0, 0.7, 1.5707963, 4.4}) {
        for (const double sweep : {6.2826, 6.283, 6.28318, 6.2831853, 2 * M_PI, 6.283188}) {
            for (const double end : {start + sweep, start + sweep - 6.2831853}) {
                if (end > start && end < start + 1) continue; // another arc
                if (std::abs(end - start) < 1e-6) continue;
                Picture picture(144);
                picture.draw([&](Printer& p) {
                    p.pen(0, 4);
                    p.arc(6000, 8000, 1800, start, end);
                });
                const QRectF dark = picture.dark();
                EXPECT_NEAR(dark.width(), 3600, 40) << start << " " << end;
                EXPECT_NEAR(dark.height(), 3600, 40) << start << " " << end;
            }
        }
    }
}

// The centre lies far off the page, where a sixteenth of a degree is a long way.
TEST(PagePicture, AnArcBeginsAndEndsWhereItBelongs)
{
    constexpr double radius = 400000;
    for (const double middle : {0.33, 1.234, 2.9, 4.1, 5.555}) {
        for (const double half : {0.0002, 0.0004, 0.0031}) {
            const double centreX = 6000 - radius * std::cos(middle);
            const double centreY = 8000 + radius * std::sin(middle);
            Picture picture(144);
            picture.draw([&](Printer& p) {
                p.pen(0, 4);
                p.arc(centreX, centreY, radius, middle - half, middle + half);
            });
            const double wide = 2 * radius * half * std::abs(std::sin(middle));
            const double high = 2 * radius * half * std::abs(std::cos(middle));
            EXPECT_NEAR(picture.dark().width(), wide, 40) << middle << " " << half;
            EXPECT_NEAR(picture.dark().height(), high, 40) << middle << " " << half;
            EXPECT_NEAR(picture.dark().center().x(), 6000, 20) << middle << " " << half;
            EXPECT_NEAR(picture.dark().center().y(), 8000, 20) << middle << " " << half;
        }
    }
}

TEST(PagePicture, WhatTheSurfaceDoesNotShowIsNotOnPaper)
{
    Picture picture(144);
    picture.draw([](Printer& p) {
        p.pen(0, 14);
        for (const double radius : {-1.0, -350.0, -2600.5}) {
            p.circle(6000, 8000, radius);
            p.arc(4000, 5000, radius, 0.3, 2.9);
            p.arc(4000, 5000, radius, 0, 6.2831853);
        }
        p.arc(6000, 8000, 1000, 1.1, 1.1);
    });
    EXPECT_TRUE(picture.dark().isEmpty());
}

// Lengths in pixels of the surface, of which 96 are an inch.
struct DashRow {
    std::int16_t style;
    std::vector<int> runs;
};

// Where a level line is dark, in twips: from, to, from, to.
std::vector<double> runsOfLine(std::int16_t style, int width)
{
    Picture picture(288);
    picture.draw([&](Printer& p) {
        p.pen(style, width);
        p.line(1000, 2002.5, 2000, 2002.5);
    });
    return picture.edgesAlong(2002.5);
}

TEST(PagePicture, DashesAreAsLongInEveryPen)
{
    const DashRow rows[] = {{1, {18, 6}}, {2, {3, 3}}, {3, {9, 6, 3, 6}}, {4, {9, 3, 3, 3, 3, 3}},
                            {0, {1000}},  {5, {1000}}};
    for (const DashRow& row : rows) {
        for (const int width : {1, 2, 4, 9, 14}) {
            const std::vector<double> edges = runsOfLine(row.style, width);
            double at = 1000;
            for (std::size_t i = 0; at < 2000; ++i) {
                ASSERT_LT(i, edges.size()) << row.style << " " << width;
                EXPECT_NEAR(edges[i], at, 8) << row.style << " " << width << " " << i;
                at += row.runs[i % row.runs.size()] * 15.0;
            }
        }
    }
}

// The widest pen is 14 dots of 600 to the inch: 34 twips, one and a half pixels of a small picture.
TEST(PagePicture, APenIsAsWideBesideThePageAsItIsOnPaper)
{
    Picture picture(60);
    picture.draw([](Printer& p) {
        p.pen(0, 14);
        p.line(1000, 6000, 11000, 6000);
    });
    EXPECT_LE(picture.dark().height(), 72) << "three pixels of 24 twips at the most";
}

TEST(PagePicture, TextIsAsWideBesideThePageAsItIsOnPaper)
{
    const auto words = [](Printer& p) {
        p.font("Garamond", 8);
        p.text(1440, 1440, "Mirtane 4.00 and a longer line of words than that, to be measured");
    };
    Picture large(600);
    large.draw(words);
    Picture small(54);
    small.draw(words);
    EXPECT_NEAR(small.dark().width() / large.dark().width(), 1, 0.05);
}

TEST(PagePicture, TextBelowOnePixelStillLeavesItsTrace)
{
    Picture picture(36);
    picture.draw([](Printer& p) {
        p.font("Serif", 1.8);
        for (int row = 0; row < 20; ++row)
            p.rotatedText(1440, 1440 + 20 * row, 36, 0, false, "MMMMMMMMMMMMMMMM");
    });
    EXPECT_GT(picture.dark().width(), 200);
}

TEST(PagePicture, TextTurnsCounterClockwiseAboutItsUpperLeft)
{
    Picture picture(144);
    picture.draw([](Printer& p) {
        p.font("Serif", 36);
        p.rotatedText(6000, 8000, 720, 90, false, "HHHH");
    });
    const QRectF dark = picture.dark();
    EXPECT_GT(dark.left(), 5990);
    EXPECT_LT(dark.right(), 6000 + 1200);
    EXPECT_LT(dark.bottom(), 8010);
    EXPECT_GT(dark.height(), 1440);
}

class PdfFile : public testing::Test {
  protected:
    static void drawLine(Printer& printer)
    {
        printer.pen(0, 1);
        printer.line(360, 7920, 11880, 7920);
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("house.pdf"));
};

TEST_F(PdfFile, KnowsItsPaperInTwips)
{
    const PdfPrinter letter{QPageSize(QPageSize::Letter)};
    EXPECT_EQ(letter.pageWidth(), 12240);
    EXPECT_EQ(letter.pageHeight(), 15840);
    EXPECT_TRUE(letter.printsToFile());
    const PdfPrinter a4{QPageSize(QPageSize::A4)};
    EXPECT_NEAR(a4.pageWidth(), 11906, 10);
    EXPECT_NEAR(a4.pageHeight(), 16838, 10);
}

TEST_F(PdfFile, LiesAcrossWhereThatIsWished)
{
    PdfPrinter across{QPageSize(QPageSize::Letter), QPageLayout::Landscape};
    EXPECT_EQ(across.pageWidth(), 15840);
    EXPECT_EQ(across.pageHeight(), 12240);
    ASSERT_TRUE(across.beginPage({path_.toStdString(), {}}));
    drawLine(across);
    ASSERT_TRUE(across.endPage());
    EXPECT_TRUE(contents(path_).contains("/MediaBox [0 0 792"));
}

TEST_F(PdfFile, IsWrittenWhenThePageEndsAndNotBefore)
{
    PdfPrinter printer{QPageSize(QPageSize::Letter)};
    ASSERT_TRUE(printer.beginPage({path_.toStdString(), {}}));
    drawLine(printer);
    EXPECT_FALSE(QFile::exists(path_));
    EXPECT_TRUE(printer.endPage());
    const QByteArray bytes = contents(path_);
    EXPECT_TRUE(bytes.startsWith("%PDF-"));
    EXPECT_TRUE(bytes.contains("/MediaBox [0 0 612"));
    EXPECT_TRUE(bytes.contains("/Count 1"));
}

TEST_F(PdfFile, HasItsTitle)
{
    const QString teller = QStandardPaths::findExecutable(QStringLiteral("pdfinfo"));
    if (teller.isEmpty()) GTEST_SKIP() << "nothing here tells what stands in a PDF file";
    for (const char* title : {"house.mtd", "\u00E9t\u00E9 (\u5BB6) \\ 2.mtd"}) {
        PdfPrinter printer{QPageSize(QPageSize::Letter)};
        ASSERT_TRUE(printer.beginPage({path_.toStdString(), title}));
        drawLine(printer);
        ASSERT_TRUE(printer.endPage());
        QProcess told;
        told.start(teller, {QStringLiteral("-enc"), QStringLiteral("UTF-8"), path_});
        ASSERT_TRUE(told.waitForFinished());
        const QStringList lines = QString::fromUtf8(told.readAllStandardOutput()).split('\n');
        const QStringList titles = lines.filter(QStringLiteral("Title:"));
        ASSERT_EQ(titles.size(), 1);
        EXPECT_EQ(titles.first().mid(6).trimmed().toStdString(), title);
    }
}

TEST_F(PdfFile, TakesThePlaceOfTheOneBefore)
{
    PdfPrinter printer{QPageSize(QPageSize::Letter)};
    for (int run = 0; run < 2; ++run) {
        ASSERT_TRUE(printer.beginPage({path_.toStdString(), {}}));
        drawLine(printer);
        ASSERT_TRUE(printer.endPage());
        EXPECT_TRUE(contents(path_).contains("/Count 1")) << run;
    }
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(PdfFile, ThatCannotBeWrittenIsToldAndTheNextPageIsPrinted)
{
    PdfPrinter printer{QPageSize(QPageSize::Letter)};
    const std::string nowhere = folder_.filePath(QStringLiteral("none/house.pdf")).toStdString();
    const bool begun = printer.beginPage({nowhere, {}});
    if (begun) drawLine(printer);
    EXPECT_FALSE(begun && printer.endPage());
    ASSERT_TRUE(printer.beginPage({path_.toStdString(), {}}));
    drawLine(printer);
    EXPECT_TRUE(printer.endPage());
    EXPECT_TRUE(contents(path_).startsWith("%PDF-"));
}

// The widest pen is 14 dots of the page, and a point made with it is a dot as large.
TEST_F(PdfFile, APointIsAsLargeAsThePenIsWide)
{
    const QString toPicture = QStandardPaths::findExecutable(QStringLiteral("pdftoppm"));
    if (toPicture.isEmpty()) GTEST_SKIP() << "nothing here turns a PDF file into a picture";
    PdfPrinter printer{QPageSize(QPageSize::Letter)};
    ASSERT_TRUE(printer.beginPage({path_.toStdString(), {}}));
    printer.pen(0, 14);
    printer.point(1440, 1440);
    ASSERT_TRUE(printer.endPage());
    const QString picture = folder_.filePath(QStringLiteral("page"));
    QProcess::execute(toPicture, {"-r", "600", "-x", "580", "-y", "580", "-W", "40", "-H", "40", "-png",
                                  "-singlefile", path_, picture});
    const QImage part(picture + ".png");
    ASSERT_FALSE(part.isNull());
    int dark = 0;
    for (int y = 0; y < part.height(); ++y) {
        for (int x = 0; x < part.width(); ++x) dark += qGray(part.pixel(x, y)) < 128 ? 1 : 0;
    }
    EXPECT_GT(dark, 14 * 14 / 2);
    EXPECT_LT(dark, 16 * 16);
}

// A page whose lines go to the toolkit one by one, in the order in which they are drawn.
class LineByLine : public PagePainter {
  public:
    explicit LineByLine(const QString& file) : PagePainter(12240, 15840), writer_(file)
    {
        writer_.setPageSize(QPageSize(QPageSize::Letter));
        writer_.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer_.setResolution(600);
    }
    bool printsToFile() const override { return true; }
    std::string setup(const PageName&) override { return {}; }
    bool beginPage(const PageName&) override { return beginOn(writer_, 600 / 1440.0); }

  private:
    QPdfWriter writer_;
};

// Slanted lines with pens of all kinds in turn, and other marks between them.
void drawPlan(Printer& printer, int lines)
{
    for (int i = 0; i < lines; ++i) {
        const double angle = i * 0.37;
        const double x = 6000 + 3 * (i % 1200) * std::cos(angle);
        const double y = 7900 - 4 * (i % 1100) * std::sin(angle * 1.3);
        printer.pen(static_cast<std::int16_t>(i % 5), 1 + i % 14); // 0 to 4
        printer.line(x, y, x + 700 * std::cos(angle), y - 700 * std::sin(angle));
        if (i % 40 == 0) printer.circle(x, y, 300);
        if (i % 40 == 10) printer.arc(x, y, 450, angle, angle + 1);
        if (i % 40 == 20) printer.point(x, y);
    }
}

TEST_F(PdfFile, LooksAsIfItsLinesWereDrawnOneByOne)
{
    const QString toPicture = QStandardPaths::findExecutable(QStringLiteral("pdftoppm"));
    if (toPicture.isEmpty()) GTEST_SKIP() << "nothing here turns a PDF file into a picture";
    const auto pictureOf = [&](Printer& printer, const QString& file) {
        EXPECT_TRUE(printer.beginPage({file.toStdString(), {}}));
        drawPlan(printer, 400);
        EXPECT_TRUE(printer.endPage());
        const QString picture = file + QStringLiteral("-page");
        QProcess::execute(toPicture, {"-r", "100", "-gray", "-png", "-singlefile", file, picture});
        return QImage(picture + ".png").convertToFormat(QImage::Format_Grayscale8);
    };
    PdfPrinter joined{QPageSize(QPageSize::Letter)};
    const QImage found = pictureOf(joined, path_);
    const QString plainPath = folder_.filePath(QStringLiteral("plain.pdf"));
    LineByLine plain(plainPath);
    const QImage expected = pictureOf(plain, plainPath);
    ASSERT_EQ(found.size(), expected.size());
    ASSERT_FALSE(found.isNull());
    double ink = 0, apart = 0;
    for (int y = 0; y < found.height(); ++y) {
        for (int x = 0; x < found.width(); ++x) {
            ink += 255 - qGray(expected.pixel(x, y));
            apart += std::abs(qGray(found.pixel(x, y)) - qGray(expected.pixel(x, y)));
        }
    }
    EXPECT_GT(ink, 1e6);
    EXPECT_LT(apart / ink, 0.03);
}

TEST_F(PdfFile, SaysEachPenOnceForAllItsLines)
{
    constexpr int lines = 6000;
    PdfPrinter joined{QPageSize(QPageSize::Letter)};
    ASSERT_TRUE(joined.beginPage({path_.toStdString(), {}}));
    drawPlan(joined, lines);
    ASSERT_TRUE(joined.endPage());
    const QString plainPath = folder_.filePath(QStringLiteral("plain.pdf"));
    {
        LineByLine plain(plainPath);
        ASSERT_TRUE(plain.beginPage({}));
        drawPlan(plain, lines);
        ASSERT_TRUE(plain.endPage());
    }
    EXPECT_LT(contents(path_).size() * 3, contents(plainPath).size() * 2);
}

TEST_F(PdfFile, TakesNamesOfAnyLanguage)
{
    const QString path = folder_.filePath(QStringLiteral("H\u00e4user \u6771.pdf"));
    PdfPrinter printer{QPageSize(QPageSize::A4)};
    ASSERT_TRUE(printer.beginPage({path.toStdString(), {}}));
    drawLine(printer);
    ASSERT_TRUE(printer.endPage());
    EXPECT_TRUE(QFile::exists(path));
}

} // namespace
} // namespace mirtane
