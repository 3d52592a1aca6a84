#include "FakePlatform.h"

FakePlatform::FakePlatform() = default;
FakePlatform::~FakePlatform() = default;

FakePlatform &FakePlatform::install()
{
    auto platform = std::make_unique<FakePlatform>();
    FakePlatform &installed = *platform;
    Platform::install(std::move(platform));
    return installed;
}

std::unique_ptr<Bundle> FakePlatform::bundle(const QUrl &url)
{
    for (const FakeBundle &candidate : std::as_const(bundles)) {
        if (candidate.url == url)
            return std::make_unique<FakeBundle>(candidate);
    }
    return nullptr;
}

UserDefaults *FakePlatform::userDefaults(const QString &suiteName)
{
    return suitesCanBeOpened ? &suite(suiteName) : nullptr;
}
