#pragma once

#include <QByteArray>
#include <QHash>
#include <QQuickImageProvider>

/// The design system's symbols as images, drawn once: "image://symbols/NAME/POINTS/COLOUR".
class SymbolImages : public QQuickImageProvider {
public:
    /// `file` is the symbols' table: a line each of a name and its paths, with tabs between them.
    SymbolImages(const QString& file, double scale);

    QImage requestImage(const QString& id, QSize* size, const QSize& requested) override;

private:
    QHash<QByteArray, QByteArray> m_lines;
    double m_scale; // device pixels in a point
};
