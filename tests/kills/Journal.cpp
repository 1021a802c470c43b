#include "kills/Journal.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace pelmira::test {
namespace {

constexpr int side = 4;       // pixels of a look
constexpr int mostApart = 10; // of 255: the saved photo is a JPEG

std::optional<Work> workIn(const QByteArray& line)
{
    const QList<QByteArray> words = line.split(' ');
    if (words.size() != 5)
        return std::nullopt;
    return Work{{words[1].toInt(), words[2].toInt()},
                QByteArray::fromHex(words[3]),
                words[4].toULongLong()};
}

} // namespace

Work Work::of(QImage photo, const std::uint8_t* plane, std::size_t count)
{
    Work work;
    work.size = photo.size();
    photo.reinterpretAsFormat(QImage::Format_RGB32);
    const QImage small = photo.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    for (int y = 0; y < small.height(); ++y)
        for (int x = 0; x < small.width(); ++x)
            for (const int part :
                 {qRed(small.pixel(x, y)), qGreen(small.pixel(x, y)), qBlue(small.pixel(x, y))})
                work.look.append(static_cast<char>(part));
    // FNV-1a, http://www.isthe.com/chongo/tech/comp/fnv/
    work.mask = 0xcbf29ce484222325;
    for (std::size_t i = 0; i < count; ++i)
        work.mask = (work.mask ^ plane[i]) * 0x100000001b3;
    return work;
}

bool Work::isOfSamePhoto(const Work& other) const
{
    const auto isNear = [](char a, char b) { return std::abs(uchar(a) - uchar(b)) <= mostApart; };
    return size == other.size &&
           std::equal(look.begin(), look.end(), other.look.begin(), other.look.end(), isNear);
}

bool Allowed::allows(const std::optional<Work>& offered) const
{
    if (!offered)
        return none;
    const auto isOffered = [&](const Work& work) {
        return work.mask == offered->mask && work.isOfSamePhoto(*offered);
    };
    return anyPhoto || std::any_of(works.begin(), works.end(), isOffered) ||
           (anyMask && !works.empty() && works.back().isOfSamePhoto(*offered));
}

Journal::Journal(QString path) : _path(std::move(path))
{
}

void Journal::state(const Work& work)
{
    add("state " + QByteArray::number(work.size.width()) + ' ' +
        QByteArray::number(work.size.height()) + ' ' + work.look.toHex() + ' ' +
        QByteArray::number(quint64{work.mask}));
}

void Journal::restart(const std::optional<Work>& offered)
{
    QFile::remove(_path);
    if (!offered)
        return;
    state(*offered);
    note("settled");
}

Allowed Journal::allowed() const
{
    Allowed allowed;
    QFile file(_path);
    if (!file.open(QIODevice::ReadOnly))
        return allowed;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line == "acting") {
            allowed.anyMask = true;
        } else if (line == "opening") {
            allowed.anyPhoto = allowed.none = true;
        } else if (line == "leaving") {
            allowed.none = true;
        } else if (line == "left") {
            allowed = {};
        } else if (line == "settled" && !allowed.works.empty()) {
            allowed.works = {allowed.works.back()};
            allowed.none = false;
        } else if (const std::optional<Work> work = workIn(line)) {
            // What was under way before the photo went when that was opened.
            if (std::exchange(allowed.anyPhoto, false))
                allowed.works.clear();
            allowed.works.push_back(*work);
            allowed.anyMask = false;
        }
    }
    return allowed;
}

void Journal::add(const QByteArray& line)
{
    const int file =
        ::open(QFile::encodeName(_path).constData(), O_WRONLY | O_APPEND | O_CREAT, 0600);
    const QByteArray whole = line + '\n';
    if (file < 0 ||
        ::write(file, whole.constData(), static_cast<std::size_t>(whole.size())) != whole.size())
        std::_Exit(5);
    ::close(file);
}

} // namespace pelmira::test
