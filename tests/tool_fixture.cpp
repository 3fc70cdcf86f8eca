#include "tool_fixture.h"

#include <linux/capability.h>
#include <sys/prctl.h>

AraçSonucu AraçÇalıştır(const QStringList& değişkenler, const AraçKoşulu& koşul)
{
    QProcess p;
    p.setChildProcessModifier([&koşul] {
        for (const int yetki : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH})
            prctl(PR_CAPBSET_DROP, yetki);
        if (koşul.Önce)
            koşul.Önce();
    });
    p.setStandardOutputFile(koşul.Çıktı);
    p.start(QStringLiteral(COMPANION_TOOL), değişkenler);
    p.write(koşul.Girdi);
    koşul.Sürerken ? koşul.Sürerken(int(p.processId())) : p.closeWriteChannel();
    const bool bitti = p.waitForFinished(60'000) && p.exitStatus() == QProcess::NormalExit;
    return {bitti ? p.exitCode() : -1, p.readAllStandardOutput() + p.readAllStandardError()};
}

void Olmalı(const AraçSonucu& sonuç, int durum, const QByteArray& baş)
{
    const bool uyar = sonuç.second.startsWith(baş) || sonuç.second.startsWith("belgenar-kitaplik: " + baş);
    QVERIFY2(uyar && sonuç.first == durum, baş + " expected, " + sonuç.second);
}
