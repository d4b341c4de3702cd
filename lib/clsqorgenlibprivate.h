#pragma once

#include "grid/gridcolumnwidths.h"

/// The working state of a clsqorGenLib object that is not one of its
/// properties, kept out of the installed header.
class clsqorGenLibPrivate
{
public:
    /// The column widths of the grid being set up, carried from call to call.
    qor::GridColumnWidths gridWidths;
};
