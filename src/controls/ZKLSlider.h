#pragma once

#include <QObject>

namespace pelmira {

/// The app's slider: a value within a range, set in code or by the user.
class ZKLSlider : public QObject {
    Q_OBJECT
    Q_PROPERTY(float value READ value NOTIFY valueChanged)
    Q_PROPERTY(float minimumValue READ minimumValue NOTIFY rangeChanged)
    Q_PROPERTY(float maximumValue READ maximumValue NOTIFY rangeChanged)
    Q_PROPERTY(bool fillsFromMiddle MEMBER fillsFromMiddle CONSTANT)
public:
    explicit ZKLSlider(QObject* parent = nullptr) : QObject(parent) {}

    float value() const { return _value; }
    /// Brought into the range; not a number counts as the minimum. Tells only those who show it.
    void setValue(float value);
    float minimumValue() const { return _minimumValue; }
    float maximumValue() const { return _maximumValue; }
    void setRange(float minimumValue, float maximumValue);

    // For a value that goes both ways. To be set before the slider is shown.

    bool fillsFromMiddle = false; ///< the track is coloured from its middle to the thumb
    bool snapsToMiddle = false;   ///< a drag that comes close to the middle stays there

    /// The user moved the slider there.
    Q_INVOKABLE void moveTo(double value);
    /// The same with a finger, which can't hit a point.
    Q_INVOKABLE void dragTo(double value);
    /// A page key goes a tenth of the range, Home and End all the way. False for any other key.
    Q_INVOKABLE bool keyPressed(int key);

Q_SIGNALS:
    void valueChanged();
    void rangeChanged();
    /// By the user, also where the value stays.
    void moved();

private:
    float _value = 0.0F;
    float _minimumValue = 0.0F;
    float _maximumValue = 1.0F;
};

} // namespace pelmira
