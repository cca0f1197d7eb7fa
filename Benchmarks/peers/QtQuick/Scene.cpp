#include "Scene.h"

#include <QDir>
#include <QFontDatabase>
#include <QQmlComponent>
#include <QQuickRenderTarget>

#include "SymbolImages.h"

namespace {

void addFonts(const QString& folder)
{
    for (const auto weight : { 300, 400, 600, 700 })
        QFontDatabase::addApplicationFont(QDir(folder).filePath(QString("rounded-%1.ttf").arg(weight)));
}

}

Scene::Scene(const QJsonObject& input) : m_contents(input["contents"].toArray().toVariantList()), m_window(&m_control)
{
    const double scale = input["scale"].toDouble();
    const QSizeF points(input["width"].toDouble(), input["height"].toDouble());
    addFonts(input["fonts"].toString());
    m_engine.addImageProvider("symbols", new SymbolImages(input["symbols"].toString(), scale));
    QQmlComponent component(&m_engine, QUrl("qrc:/Peer/StatusWidget.qml"));
    m_root.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        { { "look", input["colors"].toObject().toVariantMap() }, { "content", m_contents.first() },
            { "breatheNow", input["breatheNow"].toString() }, { "radius", input["radius"].toDouble() } })));
    if (!m_root)
        qFatal("%s", qPrintable(component.errorString()));
    m_background = m_root->findChild<QQuickItem*>("background");
    m_root->setSize(points);
    m_root->setParentItem(m_window.contentItem());
    m_window.contentItem()->setSize(points);
    m_window.setGeometry(0, 0, qRound(points.width()), qRound(points.height()));
    m_window.setColor(Qt::transparent);

    m_image = QImage((points * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    m_image.setDevicePixelRatio(scale);
    m_image.fill(Qt::transparent);
    auto target = QQuickRenderTarget::fromPaintDevice(&m_image);
    target.setDevicePixelRatio(scale);
    m_window.setRenderTarget(target);
}

void Scene::show(const QVariantMap& content)
{
    m_root->setProperty("content", content);
}

void Scene::soil()
{
    m_background->setProperty("radius", m_background->property("radius").toDouble() == 22 ? 22.001 : 22);
}

void Scene::render()
{
    m_control.polishItems();
    m_control.beginFrame();
    m_control.sync();
    m_control.render();
    m_control.endFrame();
}
