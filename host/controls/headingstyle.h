#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr std::array headingStyleProperties {
    PropertyDefinition { "EllipsisText", QMetaType::Bool },
    PropertyDefinition { "ForegroundPicture", QMetaType::QVariant },
    PropertyDefinition { "ForegroundPicturePosition", QMetaType::Int },
    PropertyDefinition { "TransparentForegroundPicture", QMetaType::Bool },
};

/// The heading of a grid column.
inline constexpr ControlDefinition headingStyle { "HeadingStyle", headingStyleProperties, {} };

} // namespace qor::controls
