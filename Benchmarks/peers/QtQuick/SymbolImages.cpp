#include "SymbolImages.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>

namespace {

constexpr double symbolSide = 24;

/// A path of M, L and C with absolute numbers, and Z.
QPainterPath pathOf(const QString& text)
{
    static const QRegularExpression step("([MLCZ])([^MLCZ]*)");
    QPainterPath path;
    for (auto steps = step.globalMatch(text); steps.hasNext();) {
        const auto found = steps.next();
        QList<double> n;
        for (const auto& number : found.captured(2).split(' ', Qt::SkipEmptyParts))
            n << number.toDouble();
        if (found.captured(1) == "M")
            path.moveTo(n.at(0), n.at(1));
        else if (found.captured(1) == "L")
            path.lineTo(n.at(0), n.at(1));
        else if (found.captured(1) == "C")
            path.cubicTo(n.at(0), n.at(1), n.at(2), n.at(3), n.at(4), n.at(5));
        else
            path.closeSubpath();
    }
    return path;
}

}

SymbolImages::SymbolImages(const QString& name, double scale) : QQuickImageProvider(Image), m_scale(scale)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("the symbols cannot be read");
    for (const auto& line : file.readAll().split('\n'))
        m_lines.insert(line.left(line.indexOf('\t')), line.mid(line.indexOf('\t') + 1));
}

QImage SymbolImages::requestImage(const QString& id, QSize* size, const QSize&)
{
    const auto parts = id.split('/');
    const auto name = QString(parts.at(0)).remove(".fill").toUtf8();
    const auto line = m_lines.value(name, m_lines.value("moon"));
    const double side = parts.at(1).toDouble() * m_scale;
    QImage image(qCeil(side), qCeil(side), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(m_scale);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / m_scale / symbolSide, side / m_scale / symbolSide);
    painter.setPen(QPen(QColor(parts.at(2)), 0.073 * symbolSide, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const auto& path : line.split('\t'))
        painter.drawPath(pathOf(path.mid(1)));
    *size = image.size();
    return image;
}
