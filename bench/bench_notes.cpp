#include "model/store.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype Megabyte = 1'000'000;

/// A megabyte of one thing again and again.
QString filledWith(const QString& piece)
{
    return piece.repeated(Megabyte / piece.size());
}

struct Shape {
    const char* name;
    QString text;
};

const Shape& shapeOf(const benchmark::State& state)
{
    static const std::array shapes{
        Shape{"three lines", u"Call Ann\nBuy milk\nSend the invoice"_s},
        Shape{"lines of 46", filledWith(u"Call with the client about the homepage, 12345\n"_s)},
        Shape{"paragraphs of 340",
              filledWith(u"The quick brown fox talks about invoices and the launch. "_s.repeated(6)
                         + u'\n')},
        Shape{"one line", filledWith(u"word and "_s)},
        Shape{"line breaks", filledWith(u"\n"_s)},
    };
    return shapes.at(static_cast<std::size_t>(state.range(0)));
}

/// A window with a view in it that has the keyboard, once it has drawn itself.
class ShownView {
public:
    explicit ShownView(const QUrl& source, const QVariantMap& properties = {})
    {
        m_view.engine()->addImportPath(u"qrc:/qt/qml"_s);
        m_view.setInitialProperties(properties);
        m_view.setResizeMode(QQuickView::SizeRootObjectToView);
        m_view.resize(656, 231);
        m_view.setSource(source);
        m_view.rootObject()->setFocus(true);
        m_view.show();
        m_view.requestActivate();
        drawFrame();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(&m_view, &event);
        drawFrame();
    }

    void drawFrame()
    {
        bool isDrawn = false;
        const auto connection = QObject::connect(&m_view, &QQuickWindow::frameSwapped, &m_view,
                                                 [&] { isDrawn = true; });
        m_view.update();
        while (!isDrawn) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QObject::disconnect(connection);
    }

private:
    QQuickView m_view;
};

/// A store in a folder of its own, with such notes. Nothing it schedules is ever run.
class Workplace {
public:
    explicit Workplace(const QString& notes)
    {
        qputenv("QUIB_DATA_DIR", QFile::encodeName(m_folder.path()));
        store = std::make_unique<quib::Store>(quib::StoreSurroundings{
            .schedule = [](auto&&...) { return std::make_unique<QObject>(); }});
        store->setData({.notes = notes});
    }

    std::unique_ptr<quib::Store> store;

private:
    QTemporaryDir m_folder;
};

ShownView notesTab(const Workplace& work)
{
    return ShownView(QUrl(u"qrc:/qt/qml/Quib/Tabs/Notes/NotesView.qml"_s),
                     {{u"store"_s, QVariant::fromValue(work.store.get())}});
}

/// An editor of Qt's that writes nowhere.
ShownView bareEditor(const QString& text)
{
    return ShownView(QUrl::fromLocalFile(QStringLiteral(BARE_EDITOR)), {{u"text"_s, text}});
}

void typeInto(ShownView& view, benchmark::State& state)
{
    view.press(state.range(1) == 0 ? Qt::Key_Home : Qt::Key_End, Qt::ControlModifier);
    for (auto _ : state) {
        view.press(Qt::Key_X, {}, u"x"_s);
    }
    state.SetLabel(shapeOf(state).name + std::string(state.range(1) == 0 ? ", top" : ", end"));
}

/// From the key to the frame that shows it.
void keystroke(benchmark::State& state)
{
    const Workplace work(shapeOf(state).text);
    auto view = notesTab(work);
    typeInto(view, state);
}

void keystrokeBaseline(benchmark::State& state)
{
    auto view = bareEditor(shapeOf(state).text);
    typeInto(view, state);
}

void firstShowing(benchmark::State& state)
{
    const Workplace work(shapeOf(state).text);
    for (auto _ : state) {
        notesTab(work);
    }
    state.SetLabel(shapeOf(state).name);
}

void firstShowingBaseline(benchmark::State& state)
{
    for (auto _ : state) {
        bareEditor(shapeOf(state).text);
    }
    state.SetLabel(shapeOf(state).name);
}

void shapesAndPlaces(benchmark::internal::Benchmark* bench)
{
    bench->ArgsProduct({{0, 1, 2, 3, 4}, {0, 1}})->Unit(benchmark::kMillisecond)->Iterations(20);
}

void shapes(benchmark::internal::Benchmark* bench)
{
    bench->DenseRange(0, 4)->Unit(benchmark::kMillisecond)->Iterations(3);
}

BENCHMARK(keystroke)->Apply(shapesAndPlaces);
BENCHMARK(keystrokeBaseline)->Apply(shapesAndPlaces);
BENCHMARK(firstShowing)->Apply(shapes);
BENCHMARK(firstShowingBaseline)->Apply(shapes);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
