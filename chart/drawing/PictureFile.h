#pragma once

/// Drawings as the bytes of picture files.

#include <QByteArray>
#include <QPainter>
#include <QSizeF>
#include <QString>

#include <functional>
#include <span>
#include <string_view>

/// What a file shows.
struct Picture
{
    /// Pixels of a bitmap, units of a drawing, 96 to the inch.
    QSizeF Extent;
    /// Title of a file that can bear one.
    QString Title;
    /// Draws the whole extent, in its units from the upper left corner.
    std::function<void(QPainter&)> Draw;
};

/// A type of picture files.
struct PictureType
{
    /// What names of such files end in, and what users call it: "png".
    std::string_view Name;
    /// The bytes of a file; none where there is no memory for a picture of this size. Needs a
    /// QGuiApplication.
    QByteArray (*Write)(const Picture& picture);
};

/// PNG, SVG and PDF.
std::span<const PictureType, 3> PictureTypes();

/// The type that a file's name ends in, letter case apart: "rise.PNG"; null for any other end.
const PictureType* PictureTypeOf(const QString& fileName);
