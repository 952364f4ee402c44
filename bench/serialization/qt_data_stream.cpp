// QDataStream into a QByteArray. Its byte arrays are the strings, in its own order of bytes.

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

#include "serialization/competition.hpp"

namespace serialization_bench {
namespace {

struct data_stream {
	using record_type = record_of<QByteArray>;
	using bytes_type = QByteArray;

	class writer {
	public:
		void write(record_type const &one) {
			stream << qint8(one.a) << qint16(one.b) << qint32(one.c) << qint64(one.d) << quint8(one.e) << quint16(one.f)
			       << quint32(one.g) << quint64(one.h) << one.x << one.y << one.name << one.note;
		}
		QByteArray const &bytes() const { return content; }

	private:
		QByteArray content;
		QDataStream stream{&content, QIODevice::WriteOnly};
	};

	class reader {
	public:
		explicit reader(QByteArray const &bytes) : stream(bytes) {}
		record_type read() {
			record_type result;
			qint64 d = 0;
			quint64 h = 0;
			stream >> result.a >> result.b >> result.c >> d >> result.e >> result.f >> result.g >> h >> result.x >>
			    result.y >> result.name >> result.note;
			result.d = d;
			result.h = h;
			return result;
		}

	private:
		QDataStream stream;
	};
};

void describe() {
	compete<data_stream>("binary", "QDataStream");
}

bench::entry const added(&describe);

} // namespace
} // namespace serialization_bench
