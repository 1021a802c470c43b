#include "platform/camera/SystemCamera.h"

#ifdef PELMIRA_HAS_MULTIMEDIA
#include "platform/camera/MultimediaCamera.h"
#endif

namespace pelmira {

#ifdef PELMIRA_HAS_MULTIMEDIA

std::unique_ptr<Camera> makeSystemCamera()
{
    return std::make_unique<MultimediaCamera>();
}

#else

namespace {

class NoCamera final : public Camera {
public:
    QList<CameraDevice> devices() const override { return {}; }
    void start(const QByteArray&) override {}
    void stop() override {}
    void capture() override {}
};

} // namespace

std::unique_ptr<Camera> makeSystemCamera()
{
    return std::make_unique<NoCamera>();
}

#endif

} // namespace pelmira
