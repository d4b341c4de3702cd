#include "python/pythontext.h"

#include <algorithm>
#include <vector>

namespace qor::python {

bool readText(PyObject *object, QString &storage)
{
    if (!PyUnicode_Check(object))
        return false;
    const Py_ssize_t length = PyUnicode_GET_LENGTH(object);
    const void *data = PyUnicode_DATA(object);
    switch (PyUnicode_KIND(object)) {
    case PyUnicode_1BYTE_KIND: {
        // Resizing keeps the storage's buffer when it is large enough.
        storage.resize(length);
        const auto *bytes = static_cast<const unsigned char *>(data);
        char16_t *write = reinterpret_cast<char16_t *>(storage.data());
        for (Py_ssize_t i = 0; i < length; ++i)
            write[i] = bytes[i];
        return true;
    }
    case PyUnicode_2BYTE_KIND:
        storage = QString(reinterpret_cast<const QChar *>(data), length);
        return true;
    default: {
        // Code points beyond the first plane take a surrogate pair each.
        const auto *points = static_cast<const Py_UCS4 *>(data);
        storage.clear();
        storage.reserve(length + length / 2);
        for (Py_ssize_t i = 0; i < length; ++i) {
            if (QChar::requiresSurrogates(points[i])) {
                storage.append(QChar(QChar::highSurrogate(points[i])));
                storage.append(QChar(QChar::lowSurrogate(points[i])));
            } else {
                storage.append(QChar(char16_t(points[i])));
            }
        }
        return true;
    }
    }
}

std::optional<QString> textOf(pybind11::handle object)
{
    QString text;
    if (!readText(object.ptr(), text))
        return std::nullopt;
    return text;
}

QString requireText(pybind11::handle object)
{
    std::optional<QString> text = textOf(object);
    if (!text)
        throw pybind11::type_error("a number is given as a str");
    return *text;
}

pybind11::str pythonText(const QString &text)
{
    const bool latin1
        = std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x100; });
    if (latin1) {
        const QByteArray bytes = text.toLatin1();
        PyObject *made = PyUnicode_DecodeLatin1(bytes.constData(), bytes.size(), nullptr);
        if (!made)
            throw pybind11::error_already_set();
        return pybind11::reinterpret_steal<pybind11::str>(made);
    }
    std::vector<Py_UCS4> points;
    points.reserve(size_t(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            points.push_back(QChar::surrogateToUcs4(c, text[i + 1]));
            ++i;
        } else {
            points.push_back(c.unicode());
        }
    }
    PyObject *made
        = PyUnicode_FromKindAndData(PyUnicode_4BYTE_KIND, points.data(), Py_ssize_t(points.size()));
    if (!made)
        throw pybind11::error_already_set();
    return pybind11::reinterpret_steal<pybind11::str>(made);
}

} // namespace qor::python
