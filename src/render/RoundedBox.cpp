// Filling and bordering a rounded box, from a picture of an earlier paint where that gives the same pixels.

#include "render/BorderGeometry_p.h"
#include "render/BoxPainter_p.h"
#include "render/BoxPictures_p.h"
#include "render/HintGuard_p.h"

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

// The strokes and fills that make up a border, from back to front, each by itself.
std::vector<BoxPictures::Step> borderSteps(const QRect &rect, const Parameter &parameter)
{
    std::vector<BoxPictures::Step> steps;
    const auto jobs = BorderLayout::edgeJobs(
        rect, kSolidStyles, parameter.borders.data(), parameter.colors.data(), parameter.radii.data());
    for (const BorderLayout::EdgeJob &job : jobs) {
        const BorderLayout::Band band = job.place.band;
        const QBrush brush = parameter.colors[job.edge];
        steps.emplace_back([job, band, brush](QPainter *painter) {
            Custom::cDrawEdge(
                painter, band.x1, band.y1, band.x2, band.y2, job.dw1, job.dw2, job.edge, Custom::BorderSolid, brush);
        });
        const auto arc = [job, band, brush](const QSizeF &r1, const QSizeF &r2) {
            return [=](QPainter *painter) {
                Custom::cDrawRoundedCorners(
                    painter, band.x1, band.y1, band.x2, band.y2, r1, r2, job.edge, Custom::BorderSolid, brush);
            };
        };
        if (job.place.startRadius != 0 || job.place.endRadius != 0) {
            steps.emplace_back(arc(QSizeF(job.place.r1), QSizeF()));
            steps.emplace_back(arc(QSizeF(), QSizeF(job.place.r2)));
        }
    }
    return steps;
}

} // namespace

void BoxPainter::setPicturesEnabled(bool on)
{
    g_bPicturesEnabled = on;
}

QPainterPath BoxPainter::clipPath(const QRect &rect, const Parameter &parameter)
{
    return Custom::cBorderClip(rect, parameter.borders.data(), parameter.radii.data());
}

void BoxPainter::fillBox(QPainter *painter, const QRect &rect, const Parameter &parameter, const QBrush &brush)
{
    if (!hasRadius(parameter)) {
        painter->fillRect(rect, brush);
        return;
    }
    const auto steps = [&](const QRect &place) -> std::vector<BoxPictures::Step> {
        const QPainterPath path = clipPath(place, parameter);
        if (path.isEmpty())
            return { [place, brush](QPainter *p) { p->fillRect(place, brush); } };
        return { [path, brush](QPainter *p) { p->fillPath(path, brush); } };
    };
    const BoxPictures::Key key(rect.size(), parameter.borders, parameter.radii, { brush, brush, brush, brush }, true);
    if (g_bPicturesEnabled && BoxPictures::draw(painter, rect.topLeft(), key, steps))
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
    const auto steps = [&](const QRect &place) { return borderSteps(place, parameter); };
    const BoxPictures::Key key(rect.size(), parameter.borders, parameter.radii, parameter.colors, false);
    if (g_bPicturesEnabled && hasRadius(parameter) && BoxPictures::draw(painter, rect.topLeft(), key, steps))
        return;
    const HintGuard guard(painter, QPainter::Antialiasing);
    Custom::cDrawBorder(
        painter, rect, kSolidStyles, parameter.borders.data(), parameter.colors.data(), parameter.radii.data());
}
