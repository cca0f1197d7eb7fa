#include "OrvelDesign/SystemTextStyle.h"

#include <cmath>
#include <memory>
#include <mutex>
#include <utility>

namespace orvel {

namespace {

/// The one thing here that belongs to the process and not to a value: what its desktop prefers.
class ProcessPreference {
public:
    static ProcessPreference& shared()
    {
        static ProcessPreference preference;
        return preference;
    }

    void set(std::shared_ptr<const PreferredSizes> sizes)
    {
        const std::scoped_lock lock(m_mutex);
        m_sizes = std::move(sizes);
    }

    std::shared_ptr<const PreferredSizes> sizes() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_sizes;
    }

private:
    mutable std::mutex m_mutex;
    std::shared_ptr<const PreferredSizes> m_sizes;
};

}

double referenceSize(SystemTextStyle style)
{
    switch (style) {
    case SystemTextStyle::largeTitle:
        return 26;
    case SystemTextStyle::title1:
        return 22;
    case SystemTextStyle::title2:
        return 17;
    case SystemTextStyle::title3:
        return 15;
    case SystemTextStyle::headline:
    case SystemTextStyle::body:
        return 13;
    case SystemTextStyle::callout:
        return 12;
    case SystemTextStyle::subheadline:
        return 11;
    case SystemTextStyle::footnote:
    case SystemTextStyle::caption1:
    case SystemTextStyle::caption2:
        return 10;
    }
    return 10;
}

double preferredSize(SystemTextStyle style)
{
    const auto sizes = ProcessPreference::shared().sizes();
    const double preferred = sizes ? (*sizes)(style) : 0;
    return std::isfinite(preferred) && preferred > 0 ? preferred : referenceSize(style);
}

void setPreferredSizes(PreferredSizes sizes)
{
    ProcessPreference::shared().set(sizes ? std::make_shared<const PreferredSizes>(std::move(sizes)) : nullptr);
}

}
