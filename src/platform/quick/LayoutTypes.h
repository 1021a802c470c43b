#pragma once

#include <qqml.h>

#include <cstring>

namespace pelmira {

/// Makes classes known to the layout files by their own names, as types of properties: a layout
/// that is given anything else then doesn't load, and a misspelt class is an error at once. To be
/// called before the first layout that names one of them is loaded; again, it changes nothing.
template <class... Types>
void registerLayoutTypes()
{
    const auto nameOf = [](const QMetaObject& type) {
        const char* lastColon = std::strrchr(type.className(), ':');
        return lastColon ? lastColon + 1 : type.className();
    };
    static const bool once = [&] {
        (qmlRegisterUncreatableType<Types>("Pelmira", 1, 0, nameOf(Types::staticMetaObject),
                                           QStringLiteral("made by its screen")),
         ...);
        return true;
    }();
    (void)once;
}

} // namespace pelmira
