#pragma once

#include "background_editor/colors/ZKLPersistedColorsModel.h"
#include "controls/ZKLSlider.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QObject>
#include <QSizeF>
#include <QString>
#include <QVariant>

#include <functional>

namespace pelmira {

/// The panel that mixes a colour of red, green and blue: three sliders whose tracks show what they
/// would do, their values, and the favourites. Points.
class ZKLRGBMixerVC final : public QObject {
    Q_OBJECT
    Q_PROPERTY(pelmira::ZKLSlider* rSlider READ rSlider CONSTANT)
    Q_PROPERTY(pelmira::ZKLSlider* gSlider READ gSlider CONSTANT)
    Q_PROPERTY(pelmira::ZKLSlider* bSlider READ bSlider CONSTANT)
    Q_PROPERTY(QString rLabel READ rLabel NOTIFY colorChanged)
    Q_PROPERTY(QString gLabel READ gLabel NOTIFY colorChanged)
    Q_PROPERTY(QString bLabel READ bLabel NOTIFY colorChanged)
    Q_PROPERTY(QString hexLabel READ hexLabel NOTIFY colorChanged)
    Q_PROPERTY(QColor color READ color NOTIFY colorChanged)
    Q_PROPERTY(QImage rTrack READ rTrack NOTIFY tracksChanged)
    Q_PROPERTY(QImage gTrack READ gTrack NOTIFY tracksChanged)
    Q_PROPERTY(QImage bTrack READ bTrack NOTIFY tracksChanged)
    Q_PROPERTY(QVariantList favouriteColorViews READ favouriteColorViews NOTIFY favouritesChanged)
    Q_PROPERTY(QSizeF contentSize READ contentSize NOTIFY favouritesChanged)

public:
    /// The colour to start with, each channel from 0 to 1.
    ZKLRGBMixerVC(float startR, float startG, float startB, UserDefaults& defaults);

    float r;
    float g;
    float b;
    /// The user has finished.
    std::function<void()> doneBlock;
    /// `r`, `g` and `b` have changed.
    std::function<void()> colorChangedBlock;

    ZKLSlider* rSlider() { return &_rSlider; }
    ZKLSlider* gSlider() { return &_gSlider; }
    ZKLSlider* bSlider() { return &_bSlider; }
    QString rLabel() const;
    QString gLabel() const;
    QString bLabel() const;
    QString hexLabel() const;
    QColor color() const;

    /// How long the sliders' tracks are.
    Q_INVOKABLE void setTrackWidth(double trackWidth);
    QImage rTrack() const { return _rTrack; }
    QImage gTrack() const { return _gTrack; }
    QImage bTrack() const { return _bTrack; }

    /// The strip of favourites has this height.
    Q_INVOKABLE void setScrollViewHeight(double height);
    /// A swatch is a map of its `frame` in the strip and its `color`.
    QVariantList favouriteColorViews() const { return _favouriteColorViews; }
    QSizeF contentSize() const { return _contentSize; }

    Q_INVOKABLE void handleFavouriteButton();
    Q_INVOKABLE void handleFavouriteTapped(int index);
    Q_INVOKABLE void handleTickButton();
    Q_INVOKABLE void handleTopScreenTap() { handleTickButton(); }

    const ZKLPersistedColorsModel& persistedColors() const { return _persistedColors; }

Q_SIGNALS:
    void colorChanged();
    void tracksChanged();
    void favouritesChanged();

private:
    void handleSlider(const ZKLSlider& slider, float& channel);
    void setSliders();
    void updateTracks();
    void buildSwatches();
    void tellChange();

    ZKLSlider _rSlider;
    ZKLSlider _gSlider;
    ZKLSlider _bSlider;
    double _trackWidth = 0.0;
    QImage _rTrack;
    QImage _gTrack;
    QImage _bTrack;
    ZKLPersistedColorsModel _persistedColors;
    double _scrollViewHeight = 0.0;
    QVariantList _favouriteColorViews;
    QSizeF _contentSize;
};

} // namespace pelmira
