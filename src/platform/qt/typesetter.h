#pragma once

#include "render/pair_spacing.h"
#include "render/type_case.h"

#include <QFont>
#include <QImage>
#include <QRawFont>

#include <string>
#include <string_view>

namespace mirtane {

// Asks the toolkit once for each text, or for each pair of letters, and once for each letter, and keeps what
// it says: the lines that were set, as long as they take no more than a bound, and the letters in its case.
class Typesetter {
  public:
    Typesetter();
    Typesetter(const Typesetter&) = delete;
    Typesetter& operator=(const Typesetter&) = delete;

    // Good until the next line is asked for.
    const SetLine& line(std::string_view fontName, std::string_view utf8);
    TypeCase& letters() { return case_; }

  private:
    struct Key {
        std::string fontName, utf8;
        friend bool operator==(const Key&, const Key&) = default;
    };
    struct Named {
        std::string_view fontName, utf8;
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(const Key& key) const { return (*this)(Named{key.fontName, key.utf8}); }
        std::size_t operator()(const Named& name) const;
    };
    struct Same {
        using is_transparent = void;
        bool operator()(const Key& a, const Key& b) const { return a == b; }
        bool operator()(const Named& a, const Key& b) const
        {
            return a.fontName == b.fontName && a.utf8 == b.utf8;
        }
        bool operator()(const Key& a, const Named& b) const { return (*this)(b, a); }
    };
    using Lines = std::unordered_map<Key, SetLine, Hash, Same>;

    struct Face {
        QFont font;
        PairSpacing spacing;
        int lines = 0; // that were set
    };

    Face& faceNamed(std::string_view fontName);
    SetLine set(const Named& name);
    SetLine setWhole(const QFont& font, const QString& text);
    std::uint32_t letterOf(const QRawFont& font, std::uint32_t glyph);
    Coverage cast(const TypeCase::Order& order);
    const QRawFont& sized(std::size_t font, int em);
    void forget();
    const SetLine& keep(Lines::node_type line);

    struct Letter {
        std::size_t font;
        std::uint32_t glyph;
        bool outlined;
    };

    // Lines move to the newer ones when they are asked for; once those are many, the older ones go.
    Lines newer_, older_;
    std::size_t newerBytes_ = 0;
    std::unordered_map<std::string, Face> faces_;
    std::vector<QRawFont> fonts_;
    std::vector<Letter> known_;
    std::unordered_map<std::uint64_t, std::uint32_t> numbers_; // of the known, by font and glyph
    std::unordered_map<std::uint64_t, QRawFont> sized_;        // by font and em
    QImage proof_;                                             // where letters are cast
    TypeCase case_;
};

} // namespace mirtane
