// Qt's string, which is UTF-16; UTF-8 and UTF-32 are what it reads and writes.

#include <memory>

#include <QByteArray>
#include <QString>
#include <QVector>

#include "transcode/texts.hpp"

namespace bench_transcode {
namespace {

constexpr char const *competitor = "Qt";

QString from_utf8(sample const &text) {
	return QString::fromUtf8(text.utf8.data(), static_cast<int>(text.utf8.size()));
}

QString from_utf32(sample const &text) {
	return QString::fromUcs4(text.utf32.data(), static_cast<int>(text.utf32.size()));
}

void describe() {
	for (sample const &text : samples()) {
		QString const units = QString::fromUtf16(text.utf16.data(), static_cast<int>(text.utf16.size()));
		compete(text, utf8_to_utf16, competitor, [&text] { return from_utf8(text); });
		compete(text, utf8_to_utf32, competitor, [&text] { return from_utf8(text).toUcs4(); });
		compete(text, utf16_to_utf8, competitor, [units] { return units.toUtf8(); });
		compete(text, utf16_to_utf32, competitor, [units] { return units.toUcs4(); });
		compete(text, utf32_to_utf8, competitor, [&text] { return from_utf32(text).toUtf8(); });
		compete(text, utf32_to_utf16, competitor, [&text] { return from_utf32(text); });
	}
	limit_all(competitor, 1, 0, [](sample const &) { return true; });
}

bench::entry const added(&describe);

} // namespace
} // namespace bench_transcode
