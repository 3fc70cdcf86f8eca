// Converting by other programs, which scripts stand in for: each does what its input says.
#include "base/Hata.h"
#include "system/BelgeÇevirici.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class TestConverting : public QObject
{
    Q_OBJECT
    using Row = std::pair<QString, QString>; // content; its text, or behind "!" a part of the reason
    std::unique_ptr<QTemporaryDir> folder_;
    QByteArray path_ = qgetenv("PATH");

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(folder_->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray read(const QString& name) const
    {
        QFile file(folder_->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList documents(const QStringList& contents) const
    {
        QStringList paths;
        for (const QString& content : contents) {
            // Names that would be options, patterns or several words.
            paths += folder_->filePath(u"-ş '\" $(x) [%1]*"_s.arg(paths.size()));
            write(QFileInfo(paths.back()).fileName(), content.toUtf8());
        }
        return paths;
    }
    static bool dead(int pid) // or waiting for its parent to look
    {
        QFile state(u"/proc/%1/stat"_s.arg(pid));
        return kill(pid, 0) != 0 || !state.open(QIODevice::ReadOnly) || state.readAll().contains(") Z ");
    }
    void allDead() const
    {
        const QList<QByteArray> pids = read(u"bin/pids"_s).simplified().split(' ');
        QCOMPARE(pids.size(), 2);
        for (const QByteArray& pid : pids)
            QTRY_VERIFY(dead(pid.toInt()));
    }
    void nothingLeft() const { QVERIFY(QDir(folder_->filePath(u"tmp"_s)).isEmpty()); }

private slots:
    void init()
    {
        qunsetenv("TMPDIR");
        folder_ = std::make_unique<QTemporaryDir>();
        for (const auto* name : {"bin", "tmp"})
            QVERIFY(QDir(folder_->path()).mkdir(QString::fromLatin1(name)));
        for (const auto* program : {"soffice", "pdftotext", "pdfinfo", "unzip"})
            QVERIFY(QFile::copy(QStringLiteral(STAND_INS "/") + QString::fromLatin1(program),
                                folder_->filePath(u"bin/"_s + QString::fromLatin1(program))));
        qputenv("PATH", QFile::encodeName(folder_->filePath(u"bin"_s)) + ':' + path_);
        qputenv("TMPDIR", QFile::encodeName(folder_->filePath(u"tmp"_s)));
    }

    void results_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QList<Row>>("rows");
        QTest::addColumn<int>("starts"); // of the word processor
        const auto row = [](const char* name, const QString& mode, const QList<Row>& rows, int starts) {
            QTest::newRow(name) << mode << rows << starts;
        };
        const auto page = [](const QString& text) { return u"<html>"_s + text; };
        const Row good = {page(u"ışık"_s), u"A|T|||ışık"_s}, refused = {page(u"REFUSED"_s), u"!açamadı"_s},
                  crash = {page(u"CRASH"_s), u"!çöktü"_s}, half = {page(u"HALF"_s), u"!çöktü"_s},
                  last = {page(u"LAST"_s), u"A|T|||LAST"_s}, nothing = {page(u"NOTHING"_s), u"!açamadı"_s},
                  office = {page(u"a"_s), u"!çalıştırılamadı"_s};
        row("all read", {}, {good, {u"{\\rtf1 a}"_s, u"||||a"_s}, good, {u"düz"_s, u"||||düz"_s}}, 1);
        row("none for the word processor", {}, {{u"a"_s, u"||||a"_s}, {u" "_s, u"!metin yok"_s}}, 0);
        row("refused", {}, {refused, good, refused, refused, nothing, good, nothing, refused}, 1);
        row("crash at the first", {}, {crash, good}, 2);
        row("crash at the last", {}, {good, crash}, 2);
        row("crashes", {}, {good, good, crash, crash, half, good, refused, crash, good, half}, 6);
        row("cut off", {}, {{page(u"CUT"_s), u"!yarım"_s}, good}, 1);
        row("crash when done", {}, {good, last, good}, 2);
        row("says nothing", u"silent"_s, {good, refused, good}, 1);
        row("says nothing, crash", u"silent"_s, {good, crash, good}, 3);
        row("word processor is broken", u"broken"_s, {office, {u"düz"_s, u"||||düz"_s}, office, office}, 2);
        row("code pages", {},
            {{page(u"<META CHARSET=utf-8>ş"_s), u"A|T|||ş"_s},
             {page(u"<meta content=\"x; charset=x-mac\">ş"_s), u"A|T|||ş"_s}},
            1);
        row("PDF", {},
            {{u"%PDF-"_s, u"A: b|T|Rize||12.05.2004• fikir\n\niki\n"_s},
             {u"%PDF-PASSWORD"_s, u"!parola"_s},
             {u"%PDF-REFUSED"_s, u"!bozuk"_s},
             {u"%PDF-SCAN"_s, u"!taranmış"_s}},
            0);
        row("book", {},
            {{u"PK\3\4application/epub+zip"_s, u"|Kitap|||bölüm"_s},
             {u"PK\3\4application/epub+zip DAMAGED"_s, u"!bozuk"_s}},
            1);
    }

    void results()
    {
        QFETCH(QString, mode);
        QFETCH(QList<Row>, rows);
        QFETCH(int, starts);
        write(u"bin/mode"_s, mode.toUtf8());
        QStringList contents, wanted, got;
        for (const Row& row : rows) {
            contents += row.first;
            wanted += row.second;
        }
        QVERIFY(BelgeleriÇevir(documents(contents), [&](qsizetype i, const ÇevrilenBelge& belge) {
            QCOMPARE(i, got.size());
            const BelgeBilgisi& b = belge.Bilgi;
            const QString text =
                QStringList{b.Yazar, b.Başlık, b.Yer, b.Tarih, b.OluşturmaTarihi}.join(u'|') + belge.Metin;
            const bool asWanted = wanted[i].startsWith(u'!') && belge.Neden.contains(wanted[i].mid(1));
            got += asWanted ? wanted[i] : belge.Okundu() ? text : u'!' + belge.Neden;
        }));
        QCOMPARE(got, wanted);
        QCOMPARE(read(u"bin/runs"_s).count("run"), starts);
        nothingLeft();
    }

    void hang_data()
    {
        QTest::addColumn<QStringList>("contents");
        QTest::addColumn<QStringList>("parts"); // of what each gives
        QTest::addColumn<int>("limit");
        QTest::newRow("PDF") << QStringList{u"%PDF-HANG"_s} << QStringList{u"uzun"_s} << 100;
        // Enough for what doesn't hang, on a busy machine, too.
        QTest::newRow("word processor")
            << QStringList{u"<html>HANG"_s, u"<html>b"_s} << QStringList{u"3 saniyede"_s, u"b"_s} << 2500;
    }

    void hang()
    {
        QFETCH(QStringList, contents);
        QFETCH(QStringList, parts);
        QFETCH(int, limit);
        const auto check = [&](qsizetype i, const ÇevrilenBelge& belge) {
            QVERIFY2((belge.Metin + belge.Neden).contains(parts[i]), qPrintable(belge.Neden));
            parts[i].clear();
        };
        QVERIFY(BelgeleriÇevir(documents(contents), check, {}, {.Belge = limit}));
        QVERIFY(parts.join(QString()).isEmpty());
        if (parts.size() > 1)
            allDead();
        nothingLeft();
    }

    void notInstalled()
    {
        QDir(folder_->filePath(u"bin"_s)).removeRecursively();
        qputenv("PATH", QFile::encodeName(folder_->filePath(u"bin"_s)));
        QStringList got;
        QVERIFY(BelgeleriÇevir(documents({u"<html>a"_s, u"%PDF-"_s, u"PK\3\4application/epub+zip"_s})
                                   << u"/yok/a.doc"_s << folder_->path(),
                               [&](qsizetype, const ÇevrilenBelge& belge) { got += belge.Neden; }));
        const QStringList parts = {u"libreoffice-writer-nogui"_s, u"poppler-utils"_s, u"unzip"_s,
                                   u"bulunamadı"_s, u"klasör"_s};
        for (qsizetype i = 0; i < parts.size(); ++i)
            QVERIFY2(got.value(i).contains(parts[i]), qPrintable(got.join(u'|')));
    }

    void stopped_data()
    {
        QTest::addColumn<QString>("how");
        for (const auto* how : {"asked", "throws", "killed"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }

    void stopped()
    {
        QFETCH(QString, how);
        const QStringList paths = documents({u"<html>a"_s, u"<html>HANG"_s, u"<html>c"_s});
        const auto hangs = [this] { return !read(u"bin/pids"_s).isEmpty(); };
        if (how == u"killed") {
            const pid_t child = fork();
            if (child == 0) {
                BelgeleriÇevir(paths, [](qsizetype, const ÇevrilenBelge&) {});
                _exit(0);
            }
            QTRY_VERIFY_WITH_TIMEOUT(hangs(), 600'000);
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
        } else if (how == u"asked") {
            int got = 0;
            QVERIFY(!BelgeleriÇevir(
                paths, [&](qsizetype, const ÇevrilenBelge&) { ++got; }, [&] { return !hangs(); }));
            QVERIFY(got <= 1);
        } else {
            try {
                BelgeleriÇevir(
                    paths, [](qsizetype, const ÇevrilenBelge&) {},
                    [&]() -> bool { return hangs() ? throw Hata(u"dur"_s) : true; });
                QFAIL("went on");
            } catch (const Hata&) {
            }
        }
        allDead();
        if (how != u"killed")
            nothingLeft();
    }
};

QTEST_APPLESS_MAIN(TestConverting)
#include "test_system_converting.moc"
