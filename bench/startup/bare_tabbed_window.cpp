// A settings window without settings: five tabs of a few stock widgets.
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QTabWidget>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("Menu"))->addAction(QStringLiteral("Quit"));
    auto* tabs = new QTabWidget;
    for (int tab = 0; tab < 5; ++tab) {
        auto* page = new QWidget;
        auto* layout = new QVBoxLayout(page);
        layout->addWidget(new QLabel(QStringLiteral("A page of settings")));
        for (int box = 0; box < 16; ++box)
            layout->addWidget(new QCheckBox(QStringLiteral("Setting %1").arg(box)));
        tabs->addTab(page, QStringLiteral("Page %1").arg(tab));
    }
    window.setCentralWidget(tabs);
    window.resize(600, 702);
    window.show();
    return QApplication::exec();
}
