#pragma once

/// Which page of the help books tells of what.

#include <QString>

#include <optional>

class QTextDocument;
class QWidget;

/// The anchor of the page that tells of a control: its own, or that of the nearest frame or window that it
/// stands in. Empty where only the book as a whole does.
QString HelpTopicOf(const QWidget& control);

/// Where a book explains a message: the position of the cell of a table that has all of its fixed words, in
/// their order, and of several such cells the one with most of them. Nothing where no cell has.
std::optional<int> PlaceOfMessage(const QTextDocument& book, const QString& message);
