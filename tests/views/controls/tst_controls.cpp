#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QtQuickTest>

/// Runs the tst_*.qml files of this folder, in the font of all pictures.
class Setup : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        QGuiApplication::setFont(QFont(QStringLiteral("Inter")));
    }

    void qmlEngineAvailable(QQmlEngine* engine)
    {
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(controls, Setup)
#include "tst_controls.moc"
