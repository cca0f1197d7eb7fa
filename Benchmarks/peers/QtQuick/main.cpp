#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QTextStream>
#include <algorithm>
#include <ctime>
#include <functional>
#include <vector>

#include "Scene.h"

namespace {

/// Processor time of this thread in microseconds.
double now()
{
    timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

double median(int frames, const std::function<void()>& frame)
{
    frame();
    std::vector<double> times;
    for (int i = 0; i < frames; ++i) {
        const double start = now();
        frame();
        times.push_back(now() - start);
    }
    std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
    return times[times.size() / 2];
}

/// Whether a repaint leaves nothing of what the image held before.
bool repaintsEverything(Scene& scene)
{
    scene.soil();
    scene.render();
    const auto before = scene.image().copy();
    scene.image().fill(Qt::magenta);
    scene.soil();
    scene.render();
    return scene.image() == before;
}

int repaint(Scene& scene, int frames)
{
    scene.render();
    if (!repaintsEverything(scene))
        qFatal("a repaint leaves old pixels");
    const double again = median(frames, [&] {
        scene.soil();
        scene.render();
    });
    qsizetype next = 0;
    const double newWords = median(frames, [&] {
        auto content = scene.content(next++ % scene.contentCount());
        content["detail"] = QString("%1 %2").arg(content["detail"].toString()).arg(next);
        auto numbers = content["numbers"].toList();
        auto first = numbers.first().toMap();
        first["value"] = QString::number(next);
        numbers.first() = first;
        content["numbers"] = numbers;
        scene.show(content);
        scene.soil();
        scene.render();
    });
    QTextStream(stdout) << "{\"again\": " << again << ", \"newWords\": " << newWords << "}\n";
    return 0;
}

int draw(Scene& scene, const QString& file, qsizetype index)
{
    constexpr int fast = 80; // the first level of compression
    scene.show(scene.content(index));
    scene.render();
    return scene.image().save(file, "PNG", fast) ? 0 : 1;
}

}

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setSceneGraphBackend("software");
    const QGuiApplication application(argc, argv);
    const auto arguments = application.arguments();
    QFile input(arguments.value(1));
    if (arguments.size() < 4 || !input.open(QIODevice::ReadOnly))
        qFatal("usage: QtQuickWidget WORDS.json repaint FRAMES | draw FILE.png [CONTENT]");
    Scene scene(QJsonDocument::fromJson(input.readAll()).object());
    if (arguments.at(2) == "repaint")
        return repaint(scene, std::max(arguments.at(3).toInt(), 1));
    return draw(scene, arguments.at(3), arguments.value(4).toInt());
}
