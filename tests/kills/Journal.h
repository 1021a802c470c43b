#pragma once

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

// What the application that gets killed and the test that kills it agree on.

namespace pelmira::test {

/// A photo under way and its mask, as far as they tell one from another.
struct Work {
    QSize size;
    QByteArray look; ///< the photo reduced to a few pixels, red, green and blue
    std::uint64_t mask = 0;

    /// `photo` without regard to its alpha. Null pixels give a work of no size.
    static Work of(QImage photo, const std::uint8_t* plane, std::size_t count);
    bool isOfSamePhoto(const Work& other) const;
};

/// What a launch may offer after what a killed session has noted.
struct Allowed {
    std::vector<Work> works; ///< the last is what the session last saw
    bool none = true;
    bool anyMask = false;  ///< of that photo: the mask was just being changed
    bool anyPhoto = false; ///< one was just being opened

    bool allows(const std::optional<Work>& offered) const;
};

/// Lines on disk, each written at once.
class Journal {
public:
    explicit Journal(QString path);

    /// What the photo and its mask are now, at rest.
    void state(const Work& work);
    /// What is known, or about to happen:
    ///   settled  that state is on disk, as has to be after two seconds of rest
    ///   acting   the mask is to be changed
    ///   opening  a photo is to take the place of what was
    ///   leaving  the work is to be given up
    ///   left     it is
    void note(const char* what) { add(what); }

    /// Begins anew with what a launch has offered.
    void restart(const std::optional<Work>& offered);
    Allowed allowed() const;
    qint64 size() const { return QFile(_path).size(); }

private:
    void add(const QByteArray& line);

    const QString _path;
};

} // namespace pelmira::test
