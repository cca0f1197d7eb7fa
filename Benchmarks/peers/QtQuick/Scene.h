#pragma once

#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickWindow>
#include <memory>

/// The widget in a window that is never seen, drawn by Qt Quick's software renderer into an image.
class Scene {
public:
    explicit Scene(const QJsonObject& input);

    qsizetype contentCount() const { return m_contents.size(); }
    QVariantMap content(qsizetype index) const { return m_contents.at(index).toMap(); }
    void show(const QVariantMap& content);

    /// Has the next frame repaint everything: what lies lowest is what changes.
    void soil();

    void render();
    QImage& image() { return m_image; }

private:
    QVariantList m_contents;
    QQuickRenderControl m_control;
    QQuickWindow m_window;
    QQmlEngine m_engine;
    std::unique_ptr<QQuickItem> m_root;
    QQuickItem* m_background = nullptr;
    QImage m_image;
};
