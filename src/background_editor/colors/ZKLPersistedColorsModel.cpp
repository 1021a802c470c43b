#include "background_editor/colors/ZKLPersistedColorsModel.h"

#include <QList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace pelmira {
namespace {

constexpr qsizetype channels = 3;

using Color = ZKLPersistedColorsModel::Color;

bool isChannel(double number)
{
    return std::abs(number) <= double(std::numeric_limits<float>::max());
}

/// The whole level of a channel. What is kept may be far beyond the colours.
int level(float channel)
{
    return static_cast<int>(std::clamp(double(channel) * 255.0, -1e6, 1e6));
}

bool looksTheSame(const Color& a, const Color& b)
{
    return level(a.r) == level(b.r) && level(a.g) == level(b.g) && level(a.b) == level(b.b);
}

} // namespace

ZKLPersistedColorsModel::ZKLPersistedColorsModel(UserDefaults& defaults) : _defaults(defaults)
{
    load();
}

void ZKLPersistedColorsModel::load()
{
    const std::optional<QList<double>> numbers = _defaults.numbersForKey(key);
    if (!numbers || numbers->size() % channels != 0 ||
        !std::all_of(numbers->begin(), numbers->end(), isChannel)) {
        _defaults.removeValueForKey(key);
        return;
    }
    const auto channel = [&](qsizetype i) { return static_cast<float>(numbers->at(i)); };
    for (qsizetype i = 0; i < numbers->size(); i += channels)
        _colors.push_back({channel(i), channel(i + 1), channel(i + 2)});
}

void ZKLPersistedColorsModel::add(float r, float g, float b)
{
    const Color color{r, g, b};
    const auto same = std::find_if(_colors.begin(), _colors.end(),
                                   [&](const Color& each) { return looksTheSame(each, color); });
    if (same != _colors.end())
        _colors.erase(same);
    _colors.insert(_colors.begin(), color);
    if (_colors.size() > maxSavedColors)
        _colors.resize(maxSavedColors);
    save();
}

void ZKLPersistedColorsModel::save()
{
    QList<double> numbers;
    for (const Color& color : _colors)
        numbers << double(color.r) << double(color.g) << double(color.b);
    _defaults.setNumbers(numbers, key);
    _defaults.synchronize();
}

} // namespace pelmira
