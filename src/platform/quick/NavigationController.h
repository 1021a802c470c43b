#pragma once

#include "platform/screen/ScreenStack.h"
#include "platform/touch/Touches.h"

#include <QObject>
#include <QQmlEngine>
#include <QVariantAnimation>

#include <functional>
#include <memory>
#include <vector>

class QQuickItem;
class QQuickWindow;

namespace pelmira {

/// The stack of screens in one window. It loads each screen's layout file, keeps the screen told
/// of its size, calls its life-cycle operations and moves screens in and out.
class NavigationController final : public QObject, public ScreenStack {
    Q_OBJECT

public:
    /// Both outlive it.
    NavigationController(QQuickWindow& window, QQmlEngine& engine);
    ~NavigationController() override;

    void pushViewController(std::shared_ptr<Screen> screen) override;
    void popViewController() override;
    /// On a phone every presented screen takes the whole window.
    void presentViewController(std::shared_ptr<Screen> screen, ModalPresentationStyle style,
                               bool animated = true) override;
    void dismissViewController(std::function<void()> completion, bool animated = true) override;
    using ScreenStack::removeBelowTop;
    void removeBelowTop(const std::function<bool(const Screen&)>& isUnwanted) override;
    void popToRootViewController() override;
    Screen* topScreen() const override;
    using ScreenStack::holds;
    bool holds(const std::function<bool(const Screen&)>& isWanted) const override;
    /// While disabled the screens get no touches and no keys, nor does one that comes meanwhile.
    void setEnabled(bool isEnabled);
    /// Shows the screen in place of all others.
    void setRoot(std::shared_ptr<Screen> screen);

    /// A window is a phone's if its shorter side has less than 600 points.
    static bool isPhone(QSizeF windowSize);
    /// Where a sheet lies in a window.
    static QRectF formSheetFrame(QSizeF windowSize);

    /// The screens that take touches, the top one first; null before it if that one takes none, or
    /// nothing for now.
    std::vector<TouchResponder*> touchResponders() const;
    /// Tells every screen, the top one first, that the user turns to another application.
    void applicationWillResignActive();
    /// Tells every screen, the top one first, that the application leaves the foreground.
    void applicationDidEnterBackground();
    /// Tells every screen that memory is short.
    void didReceiveMemoryWarning();
    /// Whether any screen has something on its way to a file.
    bool hasUnfinishedWork() const;
    /// Whether any screen asks about something that would go with it.
    bool asksAboutUnsaved() const;

    /// A screen's layout can't be loaded, which the log says: nothing that leads to it can go on.
    std::function<void()> layoutFailedBlock;

private:
    struct Entry;

    enum class Way { In, Out };

    bool isSaidByAny(bool (Screen::*question)() const) const;
    std::shared_ptr<Entry> load(std::shared_ptr<Screen> screen);
    void show(const std::shared_ptr<Entry>& entry, bool animated);
    void leaveFrom(std::size_t first, bool animated);
    void appear(bool animated);
    static void detach(Entry& entry);
    void unload(std::shared_ptr<Entry> entry);
    void fitToWindow(Entry& entry);
    void move(std::shared_ptr<Entry> entry, Way way);
    void place(double progress);
    void settle();
    void arrive();
    void hideWhatIsCovered();

    QQuickWindow& _window;
    QQmlEngine& _engine;
    std::vector<std::shared_ptr<Entry>> _stack;
    QVariantAnimation _motion;
    std::shared_ptr<Entry> _moving;
    Way _way = Way::In;
    bool _isEnabled = true;
    bool _wasResized = false;  ///< since the last frame
    bool _isAppearing = false; ///< until the motion has ended
    bool _appearsAnimated = false;
    QMetaObject::Connection _firstFrame; ///< of the top screen at rest
    std::function<void()> _dismissed;    ///< to be called when the motion has ended
};

} // namespace pelmira
