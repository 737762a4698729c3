#pragma once

/// What assistive technology is told of a chart window's chart.

/// From now on a `ChartPicture` tells its caption as its name, and its axes, lines and their values as its
/// description. Once is enough; more does no harm.
void OfferChartPictureText();
