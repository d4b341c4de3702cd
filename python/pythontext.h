#pragma once

#include <pybind11/pybind11.h>

#include <QString>

#include <optional>

namespace qor::python {

// The text of a Python str as UTF-16, lone surrogates kept as they stand;
// nothing for any other object.
std::optional<QString> textOf(pybind11::handle object);
// The same into storage the caller keeps from call to call; false, and the
// storage untouched, for any other object.
bool readText(PyObject *object, QString &storage);

// The text of a Python str; TypeError for any other object.
QString requireText(pybind11::handle object);

// A Python str of the UTF-16 text; a lone surrogate becomes that code point.
pybind11::str pythonText(const QString &text);

} // namespace qor::python
