#pragma once

/// Documents that are the same, byte by byte, whenever and wherever they are made.

#include <QByteArray>

#include <functional>

/// The PDF document that `draw` makes. Where the environment variable SOURCE_DATE_EPOCH holds a time, in
/// seconds since 1970, that is the document's date. Throws std::runtime_error where it holds no such time.
QByteArray PdfOfSourceDate(const std::function<QByteArray()>& draw);
