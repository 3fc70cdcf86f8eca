#include "program/GirişModülü.h"
#include "system/ÇekirdekDökümü.h"

#include <QApplication>

#include <csignal>

int main(int argc, char** argv)
{
    ÇekirdekDökümünüKapat();
    std::signal(SIGPIPE, SIG_IGN); // the log's reader may go away

    ErkenBaşla();
    QApplication uygulama(argc, argv);
    return SubMain(uygulama);
}
