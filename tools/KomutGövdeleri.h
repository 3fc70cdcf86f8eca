// What each command does. All take their arguments with as many that are no options as the table in Komutlar
// says, throw Hata for what ends them, and return the exit status.
#pragma once

#include "tools/Değişkenler.h"
#include "tools/Komutlar.h"

ÇıkışDurumu OluşturKomutu(const Değişkenler& değişkenler);
ÇıkışDurumu AktarKomutu(const Değişkenler& değişkenler);
ÇıkışDurumu DökKomutu(const Değişkenler& değişkenler);
ÇıkışDurumu VerKomutu(const Değişkenler& değişkenler);
ÇıkışDurumu YedekleKomutu(const Değişkenler& değişkenler);
ÇıkışDurumu GeriYükleKomutu(const Değişkenler& değişkenler);
ÇıkışDurumu KurtarKomutu(const Değişkenler& değişkenler);
ÇıkışDurumu DenetleKomutu(const Değişkenler& değişkenler);
ÇıkışDurumu OnarKomutu(const Değişkenler& değişkenler);
ÇıkışDurumu AraKomutu(const Değişkenler& değişkenler);

/// A program folder's path with a separator at its end. Throws VeritabanıHatası YolGeçersiz.
QString KlasörYolu(const QString& klasör);
