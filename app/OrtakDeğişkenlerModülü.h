// What all windows share. Set during start-up unless said otherwise.
#pragma once

#include "app/Oturum.h"

#include <QString>
#include <QStringList>

#include <optional>

extern QString AnaPencereBaşlığı; ///< caption of the main window; also what a second start looks for
extern QString AyarUygulamaAdı;   ///< application name under which the settings are kept
extern QString ProgramKlasörü;    ///< folder of the executable and the library, with a separator at its end
extern bool NTPlatformu;          ///< what the system said of itself; never on this one, so that nothing asks

/// The library; open from start-up to the exit sequence. The two below are its workspace and its database.
extern Oturum AçıkOturum;
extern std::optional<Workspace>& ÇalışmaAlanı;
extern std::optional<Database>& Veritabanı;

/// One column of all rows of a query.
QStringList SütunuOku(const QString& sorgu, QStringView sütun);
/// The first article with this title, as it stands between apostrophes in the query; no row where none has
/// it.
Recordset MakaleyiAç(const QString& başlık);

/// What the window for changing an article saved; emptied before it is shown.
extern QString DeğiştirilenYazarAdı;
extern QString DeğiştirilenMakaleBaşlığı;

/// How the article text is shown; read when the main window loads, changed by the settings window.
extern QString MakaleYazıTipi;
extern qint16 YazıBoyutuSırası; ///< index for YazıBoyutu
extern qint16 ZeminRengiSırası; ///< index for ZeminRengi

/// The printer-choice window was left by its cancel button. Whoever opens the window sets it to false before.
extern bool YazdırmaİptalEdildi;

/// "1.00": major, point, then minor and revision side by side.
QString SürümMetni();

/// The version as windows show it: "Sürüm 1.00".
QString SürümYazısı();
