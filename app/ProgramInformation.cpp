#include "app/ProgramInformation.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <iostream>

bool ProgramInformation::answer(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    QCommandLineParser parser;
    // Qt's own options are words behind a single dash: -reverse does not ask for -v.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        "Shows helices and the quadric surface of the parameters that produce them.\n"
        "The options of every Qt program (-platform, -display, -style, ...) are taken too.");
    const QCommandLineOption help({"h", "help"}, "Displays this help.");
    parser.addOption(help);
    const QCommandLineOption version = parser.addVersionOption();
    // What it does not know is Qt's to judge.
    parser.parse(arguments);
    if (parser.isSet(help)) {
        // The text names the program by the application object's arguments.
        const QCoreApplication application(argc, argv);
        std::cout << parser.helpText().toStdString();
        return true;
    }
    if (parser.isSet(version)) {
        std::cout << "torvane " TORVANE_VERSION "\n";
        return true;
    }
    return false;
}
