#include "platform/qt/typesetter.h"

#include "geometry/fault.h"
#include "platform/qt/fonts.h"
#include "platform/qt/whole.h"

#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <algorithm>

namespace mirtane {
namespace {

// Lines are set in one size for all, since letters that are not hinted keep their proportions.
constexpr int setEm = 256;                                   // pixels
constexpr std::size_t mostLineBytes = std::size_t{12} << 20; // of the newer lines, and as many of the older
constexpr std::size_t mostLetters = 60000;                   // no drawing has nearly as many different ones
constexpr std::size_t mostFonts = 250;
constexpr int widestLetter = 10000; // pixels; that of no font that is in its senses

// Of one colour and by outlines: others are pictures that only the toolkit can draw.
bool isOutlined(const QRawFont& font, std::uint32_t glyph)
{
    return !font.pathForGlyph(glyph).isEmpty() || font.boundingRect(glyph).isEmpty();
}

// White letters on black: green is as far as a pixel is covered.
void takeInk(const QImage& proof, const QRect& box, Coverage& found)
{
    for (int row = 0; row < box.height(); ++row) {
        // A row of pixels of 32 bits.
        const auto* const pixels = reinterpret_cast<const QRgb*>(proof.constScanLine(box.top() + row));
        for (int column = 0; column < box.width(); ++column) {
            const int share = qGreen(pixels[box.left() + column]);
            if (share > 0) found.ink(column, row, share);
        }
    }
}

} // namespace

std::size_t Typesetter::Hash::operator()(const Named& name) const
{
    const std::hash<std::string_view> hash;
    return hash(name.utf8) * 31 + hash(name.fontName);
}

Typesetter::Typesetter() : case_([this](const TypeCase::Order& order) { return cast(order); }) {}

const SetLine& Typesetter::line(std::string_view fontName, std::string_view utf8)
{
    const Named name{fontName, utf8};
    if (const auto found = newer_.find(name); found != newer_.end()) return found->second;
    if (const auto found = older_.find(name); found != older_.end()) return keep(older_.extract(found));
    if (known_.size() > mostLetters || std::max(fonts_.size(), sized_.size() / 8) > mostFonts) forget();
    Lines made;
    made.emplace(Key{std::string(fontName), std::string(utf8)}, set(name));
    return keep(made.extract(made.begin()));
}

void Typesetter::forget()
{
    newer_.clear();
    older_.clear();
    newerBytes_ = 0;
    faces_.clear();
    fonts_.clear();
    known_.clear();
    numbers_.clear();
    sized_.clear();
    case_.empty();
}

const SetLine& Typesetter::keep(Lines::node_type line)
{
    if (newerBytes_ > mostLineBytes) {
        older_ = std::exchange(newer_, {});
        newerBytes_ = 0;
    }
    constexpr std::size_t node = 2 * sizeof(void*) + sizeof(Key);
    const Key& key = line.key();
    newerBytes_ += node + key.fontName.capacity() + key.utf8.capacity() + line.mapped().bytes();
    return newer_.insert(std::move(line)).position->second;
}

Typesetter::Face& Typesetter::faceNamed(std::string_view fontName)
{
    std::string name(fontName);
    if (const auto found = faces_.find(name); found != faces_.end()) return found->second;
    if (faces_.size() >= mostFonts) faces_.clear(); // a file may hold a new name for each text
    QFont font = faceOf(textOf(fontName));
    font.setPixelSize(setEm);
    const auto setFew = [this, font](std::u16string_view letters) {
        return setWhole(
            font, QString::fromUtf16(letters.data(), static_cast<qsizetype>(letters.size()))); // one or two
    };
    return faces_.emplace(std::move(name), Face{font, PairSpacing(setFew)}).first->second;
}

// To ask for all pairs of a few texts would take longer than to ask for the texts.
SetLine Typesetter::set(const Named& name)
{
    constexpr int few = 40;
    Face& face = faceNamed(name.fontName);
    const QString text = drawnText(name.utf8);
    if (++face.lines > few) {
        const std::u16string letters = text.toStdU16String();
        if (auto line = face.spacing.line(letters)) return *std::move(line);
    }
    return setWhole(face.font, text);
}

SetLine Typesetter::setWhole(const QFont& font, const QString& text)
{
    SetLine line;
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine set = layout.createLine();
    layout.endLayout();
    if (!set.isValid()) return line;
    line.width = set.naturalTextWidth() / setEm;
    for (const QGlyphRun& run : set.glyphRuns()) {
        const QRawFont raw = run.rawFont();
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> places = run.positions();
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            SetLetter letter{letterOf(raw, glyphs[i]), 0, 0};
            mirtane::keep(letter.x, places[i].x() / setEm);
            mirtane::keep(letter.y, (places[i].y() - set.ascent()) / setEm);
            line.outlined = line.outlined && known_[letter.letter].outlined;
            line.letters.push_back(letter);
        }
    }
    line.letters.shrink_to_fit();
    return line;
}

std::uint32_t Typesetter::letterOf(const QRawFont& font, std::uint32_t glyph)
{
    const auto at = std::ranges::find(fonts_, font);
    const auto place = static_cast<std::size_t>(at - fonts_.begin()); // not negative
    if (at == fonts_.end()) fonts_.push_back(font);
    const auto [found, isNew] = numbers_.try_emplace(std::uint64_t{place} << 32 | glyph);
    if (isNew) {
        found->second = static_cast<std::uint32_t>(known_.size()); // fonts have some thousand glyphs each
        known_.push_back({place, glyph, isOutlined(font, glyph)});
    }
    return found->second;
}

const QRawFont& Typesetter::sized(std::size_t font, int em)
{
    const auto [found, isNew] =
        sized_.try_emplace(std::uint64_t{font} << 32 | static_cast<unsigned>(em)); // above 0
    if (isNew) {
        found->second = fonts_[font];
        found->second.setPixelSize(em);
    }
    return found->second;
}

// As the toolkit writes it, in a corner of its own.
Coverage Typesetter::cast(const TypeCase::Order& order)
{
    const Letter& letter = known_[order.letter];
    const QRawFont& font = sized(letter.font, order.em);
    QTransform turned;
    turned.rotate(-order.degrees);
    constexpr int room = 3; // pixels: the toolkit makes thin letters bolder
    const QRectF limits = turned.mapRect(font.boundingRect(letter.glyph));
    const QRect reach = wholeRectRound(limits.adjusted(-room, -room, room, room));
    Coverage found({reach.left(), reach.top(), reach.right() + 1, reach.bottom() + 1}, order.imageWidth);
    if (!found.fits() || reach.width() > widestLetter) return found;
    if (proof_.width() < reach.width() || proof_.height() < reach.height())
        proof_ = QImage(reach.size().expandedTo(proof_.size()), QImage::Format_RGB32);
    const QPoint origin = -reach.topLeft();
    const QRect box(QPoint(0, 0), reach.size());
    QPainter painter(&proof_);
    painter.setClipRect(box);
    painter.fillRect(box, Qt::black);
    constexpr double quarter = 0.25;
    constexpr double within = 0.125; // of a quarter's half, so that none is taken for the one before
    painter.setTransform(
        turned * QTransform::fromTranslate(origin.x() + quarter * order.quarter + within, origin.y()));
    painter.setPen(Qt::white);
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes({letter.glyph});
    run.setPositions({QPointF(0, 0)});
    painter.drawGlyphRun(QPointF(0, 0), run);
    painter.end();
    takeInk(proof_, box, found);
    return found;
}

} // namespace mirtane
