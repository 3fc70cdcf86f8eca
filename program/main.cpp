#include "program/GirişModülü.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication uygulama(argc, argv);
    return SubMain(uygulama);
}
