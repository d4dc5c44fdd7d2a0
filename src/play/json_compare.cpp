#include "play/json_compare.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace mirtane::play {
namespace {

// The reader takes a whole document, which is an array or an object: a bare value is read as an array of one.
std::optional<QJsonValue> parsed(std::string_view text)
{
    QByteArray document = "[";
    document.append(text.data(), static_cast<qsizetype>(text.size())); // a line's length
    document.append(']');
    QJsonParseError fault;
    const QJsonDocument read = QJsonDocument::fromJson(document, &fault);
    if (fault.error != QJsonParseError::NoError || read.array().size() != 1) return std::nullopt;
    return read.array().first();
}

bool numbersAgree(double a, double b)
{
    constexpr double relative = 1e-5;
    constexpr double absolute = 0.001;
    const double difference = std::abs(a - b);
    return difference <= absolute || difference <= relative * std::max(std::abs(a), std::abs(b));
}

bool valuesAgree(const QJsonValue& answer, const QJsonValue& expected)
{
    if (answer.type() != expected.type()) return false;
    if (expected.isDouble()) return numbersAgree(answer.toDouble(), expected.toDouble());
    if (expected.isArray()) {
        const QJsonArray a = answer.toArray();
        const QJsonArray b = expected.toArray();
        return std::equal(a.begin(), a.end(), b.begin(), b.end(), valuesAgree);
    }
    if (expected.isObject()) {
        const QJsonObject whole = answer.toObject();
        const QJsonObject named = expected.toObject();
        return std::ranges::all_of(named.keys(), [&](const QString& key) {
            return whole.contains(key) && valuesAgree(whole.value(key), named.value(key));
        });
    }
    return answer == expected;
}

} // namespace

std::optional<std::string> stringOfJson(std::string_view text)
{
    const auto value = parsed(text);
    if (!value || !value->isString()) return std::nullopt;
    return value->toString().toStdString();
}

bool isJson(std::string_view text)
{
    return parsed(text).has_value();
}

bool agrees(std::string_view answer, std::string_view expected)
{
    const auto a = parsed(answer);
    const auto b = parsed(expected);
    return a && b && valuesAgree(*a, *b);
}

} // namespace mirtane::play
