#include "controls/ZKLProgressHUD.h"

#include <utility>

namespace pelmira {
namespace {

constexpr double secondsSuccessShown = 1.6;
constexpr double secondsLongSuccessShown = 5.0;
constexpr double secondsErrorShown = 3.0;

} // namespace

void ZKLProgressHUD::show(const QString& status)
{
    _timer.invalidate();
    setContent({Kind::Working, status, {}, {}, {}});
}

void ZKLProgressHUD::showSuccessWithStatus(const QString& status, const QString& detail,
                                           const QString& actionTitle)
{
    const bool isLong = !detail.isEmpty() || !actionTitle.isEmpty();
    setContent({Kind::Success, status, detail, actionTitle, {}});
    _timer = Timer::scheduled(isLong ? secondsLongSuccessShown : secondsSuccessShown,
                              [this] { dismiss(); });
}

void ZKLProgressHUD::showErrorWithStatus(const QString& status)
{
    setContent({Kind::Error, status, {}, {}, {}});
    _timer = Timer::scheduled(secondsErrorShown, [this] { dismiss(); });
}

void ZKLProgressHUD::setAction(std::function<void()> action)
{
    if (!isSuccess() || _content.actionTitle.isEmpty())
        return;
    _content.action = std::move(action);
    Q_EMIT changed();
}

void ZKLProgressHUD::dismiss()
{
    _timer.invalidate();
    setContent({});
}

void ZKLProgressHUD::actionButtonPressed()
{
    const std::function<void()> action = _content.action;
    if (!action)
        return;
    dismiss();
    action();
}

void ZKLProgressHUD::setContent(Content content)
{
    _content = std::move(content);
    Q_EMIT changed();
}

} // namespace pelmira
