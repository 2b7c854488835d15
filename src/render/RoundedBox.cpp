// Filling and bordering a box: the same pixels as Custom::cBorderClip() and Custom::cDrawBorder() give, without
// working out again what an earlier paint of an equal box did.

#include "render/BorderGeometry_p.h"
#include "render/BoxPainter_p.h"
#include "render/BoxPictures_p.h"
#include "render/PainterTools_p.h"

namespace {

constexpr Custom::BorderStyle kSolidStyles[]
    = { Custom::BorderSolid, Custom::BorderSolid, Custom::BorderSolid, Custom::BorderSolid };

using Parameter = CustomObjectData::BorderParameter;

bool g_bPicturesEnabled = true;

bool hasRadius(const Parameter &parameter)
{
    for (const QSize &radius : parameter.radii) {
        if (radius.width() > 0 || radius.height() > 0)
            return true;
    }
    return false;
}

// Most controls without a background of their own say so by a transparent colour.
bool isInvisible(const QBrush &brush)
{
    return brush.style() == Qt::NoBrush || (brush.style() == Qt::SolidPattern && brush.color().alpha() == 0);
}

// One edge without its corners, as Custom::cDrawEdge() draws a solid one.
void drawEdge(QPainter *painter, const BorderLayout::EdgeJob &job, const QBrush &brush)
{
    const BorderLayout::Band &band = job.place.band;
    if (band.thickness(job.edge) == 1.0 || (job.dw1 == 0 && job.dw2 == 0)) {
        painter->fillRect(QRectF(band.x1, band.y1, band.x2 - band.x1, band.y2 - band.y1), brush);
        return;
    }
    Custom::cDrawEdge(
        painter, band.x1, band.y1, band.x2, band.y2, job.dw1, job.dw2, job.edge, Custom::BorderSolid, brush);
}

} // namespace

void BoxPainter::setPicturesEnabled(bool on)
{
    g_bPicturesEnabled = on;
}

bool BoxPainter::arePicturesEnabled()
{
    return g_bPicturesEnabled;
}

QPainterPath BoxPainter::clipPath(const QRect &rect, const Parameter &parameter)
{
    return Custom::cBorderClip(rect, parameter.borders.data(), parameter.radii.data());
}

void BoxPainter::fillBox(QPainter *painter, const QRect &rect, const Parameter &parameter, const QBrush &brush)
{
    if (isInvisible(brush) && painter->compositionMode() == QPainter::CompositionMode_SourceOver)
        return;
    if (!hasRadius(parameter)) {
        painter->fillRect(rect, brush);
        return;
    }
    if (g_bPicturesEnabled && brush.style() == Qt::SolidPattern
        && BoxPictures::drawFill(painter, rect, parameter, brush.color()))
        return;
    const QPainterPath path = clipPath(rect, parameter);
    if (path.isEmpty()) {
        painter->fillRect(rect, brush);
        return;
    }
    const HintGuard guard(painter, QPainter::Antialiasing);
    painter->fillPath(path, brush);
}

void BoxPainter::drawSolidBorder(QPainter *painter, const QRect &rect, const Parameter &parameter)
{
    const HintGuard guard(painter, QPainter::Antialiasing);
    if (!g_bPicturesEnabled) {
        Custom::cDrawBorder(
            painter, rect, kSolidStyles, parameter.borders.data(), parameter.colors.data(), parameter.radii.data());
        return;
    }
    const auto jobs = BorderLayout::edgeJobs(
        rect, kSolidStyles, parameter.borders.data(), parameter.colors.data(), parameter.radii.data());
    const auto arcs = hasRadius(parameter) ? BoxPictures::arcs(rect, parameter) : nullptr;
    for (const BorderLayout::EdgeJob &job : jobs) {
        const QBrush &brush = parameter.colors[job.edge];
        drawEdge(painter, job, brush);
        if (!arcs)
            continue;
        const QPen pen(brush, job.place.band.thickness(job.edge), Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
        for (const QPainterPath &arc : (*arcs)[job.edge]) {
            if (!arc.isEmpty())
                painter->strokePath(arc, pen);
        }
    }
}
