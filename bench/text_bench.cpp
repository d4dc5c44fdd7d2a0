#include "text_bench.h"

#include "platform/qt/fonts.h"
#include "render/redraw.h"
#include "sample.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <array>
#include <random>
#include <vector>

namespace mirtane::bench {
namespace {

using benchmark::State;

constexpr std::int32_t textCount = 5000;
constexpr float size = 12; // world units, one to the pixel: 16 pixels from the highest to the lowest letter
constexpr int lineHeight = 16;

// What is written how: all level, at the four right angles, or at any whole degree.
enum Rotations { level, right, mixed };

struct PlainText {
    QPointF at;
    int degrees;
    QString words;
    QColor color;
};

// Words of 3 to 20 letters, no two alike, in eight colours.
std::string words(std::mt19937& engine)
{
    std::string text;
    const std::size_t length = 3 + engine() % 18;
    for (std::size_t i = 0; i < length; ++i) text += "etaoinshrdlu ETAOIN 0123456789'\"/.-"[engine() % 35];
    return text;
}

int degreesOf(std::mt19937& engine, Rotations rotations)
{
    const int any = static_cast<int>(engine() % 360); // fits
    if (rotations == level) return 0;
    return rotations == right ? any / 90 * 90 : any;
}

EntityRecord aText(std::mt19937& engine, Rotations rotations)
{
    constexpr std::int32_t colors[] = {0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF,
                                       0xFF00FF, 0x0080FF, 0x00FFFF, 0xFFFFFF};
    EntityRecord r;
    r.kind = Kind::text;
    r.p1 = {static_cast<float>(engine() % width), static_cast<float>(engine() % height)}; // exact
    r.p2.x = size;
    r.p4 = r.p1;
    r.rad = 200;
    r.a1 = degreesOf(engine, rotations);
    r.color = colors[engine() % 8];
    r.t1 = words(engine);
    r.t2 = "Garamond";
    return r;
}

QFont plainFont()
{
    QFont font = faceOf("Garamond");
    font.setPixelSize(256);
    const QFontMetricsF metrics(font);
    font.setPixelSize(qRound(lineHeight * 256 / (metrics.ascent() + metrics.descent())));
    return font;
}

class TextBench {
  public:
    explicit TextBench(Rotations rotations) : surface(width, height)
    {
        std::mt19937 engine{1994};
        for (std::int32_t i = 0; i < textCount; ++i) add(aText(engine, rotations));
        surface.setScale({0, 0, width, height});
        readViewLimits(s, surface);
    }

    std::unique_ptr<Session> session = std::make_unique<Session>();
    Session& s = *session;
    Surface surface;
    std::vector<PlainText> plain;

  private:
    void add(const EntityRecord& r)
    {
        s.store.setRecord(s.store.entCount, r);
        s.store.setStat(s.store.entCount++, Stat::on);
        const auto color = static_cast<QRgb>(r.color); // 0xBBGGRR, never negative
        plain.push_back({QPointF(r.p4.x, r.p4.y), static_cast<int>(r.a1), QString::fromStdString(r.t1),
                         QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16)});
    }
};

TextBench& textBench(Rotations rotations)
{
    static std::array<std::unique_ptr<TextBench>, 3> benches;
    std::unique_ptr<TextBench>& bench = benches[rotations];
    if (bench == nullptr) bench = std::make_unique<TextBench>(rotations);
    return *bench;
}

void redraw(State& state, Rotations rotations)
{
    TextBench& b = textBench(rotations);
    for (auto _ : state) redrawAll(b.s, b.surface);
}

// The same strings in the same places, in one go, with the clip that makes the toolkit fast.
void plainTexts(State& state, Rotations rotations)
{
    const TextBench& b = textBench(rotations);
    QImage image(width, height, QImage::Format_RGB32);
    const QFont font = plainFont();
    const double ascent = QFontMetricsF(font).ascent();
    for (auto _ : state) {
        image.fill(Qt::black);
        QPainter painter(&image);
        painter.setClipRect(image.rect());
        painter.setFont(font);
        for (const PlainText& text : b.plain) {
            QTransform turned = QTransform::fromTranslate(text.at.x(), text.at.y());
            turned.rotate(-text.degrees);
            painter.setTransform(turned);
            painter.setPen(text.color);
            painter.drawText(QPointF(0, ascent), text.words);
        }
    }
}

} // namespace

void registerTextMeasures()
{
    const auto add = [](const char* name, auto measure, Rotations rotations) {
        benchmark::RegisterBenchmark(name, [=](State& state) {
            measure(state, rotations);
        })->Unit(benchmark::kMillisecond);
    };
    add("5,000 texts, mixed", redraw, mixed);
    add("5,000 texts, right angles", redraw, right);
    add("5,000 texts, level", redraw, level);
    add("the toolkit's, mixed", plainTexts, mixed);
    add("the toolkit's, right angles", plainTexts, right);
    add("the toolkit's, level", plainTexts, level);
}

std::span<const Comparison> textComparisons()
{
    static constexpr Comparison rows[] = {
        {"5,000 texts, mixed", "the toolkit's, mixed", 1.3},
        {"5,000 texts, right angles", "the toolkit's, right angles", 0},
        {"5,000 texts, level", "the toolkit's, level", 0},
    };
    return rows;
}

} // namespace mirtane::bench
