#pragma once

/// The unit texts behind axis and parameter names.

#include <QString>

/// The degree sign of charts and panes.
inline const QString defaultDegreeSign = QStringLiteral("°");

/// Unit text that follows an axis or parameter name in titles and tables: "Current" has "[Arms]". An empty
/// degree sign makes the unit of temperatures plain "[C]", as message boxes want it.
///
/// Throws RunTimeError 5 that tells the name when no quantity is called so.
QString GetUnit(const QString& name, const QString& degreeSign = defaultDegreeSign);
