#pragma once

#include "python/numbercheck.h"

#include <pybind11/pybind11.h>

namespace qor::python {

// The exception classes of the number checks: ValidationError (a ValueError)
// and its subclasses InvalidLength, InvalidFormat, InvalidChecksum and
// InvalidComponent, made in `module` and offered by every number module.
void addValidationErrors(pybind11::module_ &module);
void offerValidationErrors(pybind11::module_ &module);

// compact, validate, is_valid and format of one kind of number in `module`.
// A value that is no str: is_valid gives False, validate raises InvalidFormat,
// compact and format raise TypeError.
void addNumberFunctions(pybind11::module_ &module, const NumberKind &kind);

// Raises the exception of a fault (none for Fault::None).
void raiseFault(Fault fault);

} // namespace qor::python
