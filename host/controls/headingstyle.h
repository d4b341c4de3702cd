#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr std::array headingStyleProperties {
    PropertySpec { "EllipsisText", QMetaType::Bool },
    PropertySpec { "ForegroundPicture", QMetaType::QVariant },
    PropertySpec { "ForegroundPicturePosition", QMetaType::Int },
    PropertySpec { "TransparentForegroundPicture", QMetaType::Bool },
};

/// The heading of a grid column.
inline constexpr ControlSpec headingStyle { "HeadingStyle", headingStyleProperties, {} };

} // namespace qor::controls
