// cereal: its binary archive for values in order, its JSON archive for labels.

#include <sstream>
#include <string>

#include <cereal/archives/binary.hpp>
#include <cereal/archives/json.hpp>
#include <cereal/types/string.hpp>

#include "serialization/competition.hpp"

namespace serialization_bench {

template <class Archive>
void serialize(Archive &archive, record &one) {
	archive(one.a, one.b, one.c, one.d, one.e, one.f, one.g, one.h, one.x, one.y, one.name, one.note);
}

template <class Archive>
void serialize(Archive &archive, labels::account &one) {
	archive(cereal::make_nvp("name", one.name), cereal::make_nvp("mail", one.mail), cereal::make_nvp("city", one.city),
	        cereal::make_nvp("language", one.language), cereal::make_nvp("age", one.age),
	        cereal::make_nvp("created", one.created), cereal::make_nvp("active", one.active));
}

template <class Archive>
void serialize(Archive &archive, labels::display &one) {
	archive(cereal::make_nvp("width", one.width), cereal::make_nvp("height", one.height),
	        cereal::make_nvp("scale", one.scale), cereal::make_nvp("gamma", one.gamma),
	        cereal::make_nvp("theme", one.theme), cereal::make_nvp("font", one.font),
	        cereal::make_nvp("full_screen", one.full_screen));
}

template <class Archive>
void serialize(Archive &archive, labels::schedule &one) {
	archive(cereal::make_nvp("folder", one.folder), cereal::make_nvp("target", one.target),
	        cereal::make_nvp("hour", one.hour), cereal::make_nvp("keep_days", one.keep_days),
	        cereal::make_nvp("ratio", one.ratio), cereal::make_nvp("compress", one.compress));
}

namespace {

struct binary_archive {
	using record_type = record;
	using bytes_type = std::string;

	class writer {
	public:
		void write(record const &one) { archive(one); }
		std::string_view bytes() const { return stream.view(); }

	private:
		std::ostringstream stream;
		cereal::BinaryOutputArchive archive{stream};
	};

	class reader {
	public:
		explicit reader(std::string const &bytes) : stream(bytes), archive(stream) {}
		record read() {
			record result;
			archive(result);
			return result;
		}

	private:
		std::istringstream stream;
		cereal::BinaryInputArchive archive;
	};
};

// Reads into and writes from the values themselves.
struct json_archive {
	using record_type = labels;

	static labels const &record_of(labels const &from) { return from; }
	static labels const &values_of(labels const &from) { return from; }

	static std::string render(labels const &from) {
		std::ostringstream stream;
		{
			cereal::JSONOutputArchive archive(stream, cereal::JSONOutputArchive::Options::NoIndent());
			archive(cereal::make_nvp("owner", from.owner), cereal::make_nvp("screen", from.screen),
			        cereal::make_nvp("backup", from.backup));
		}
		return std::move(stream).str();
	}

	static labels parse(std::string const &text) {
		labels to;
		std::istringstream stream(text);
		cereal::JSONInputArchive archive(stream);
		archive(cereal::make_nvp("owner", to.owner), cereal::make_nvp("screen", to.screen),
		        cereal::make_nvp("backup", to.backup));
		return to;
	}
};

void describe() {
	compete<binary_archive>("binary", "cereal");
	compete_in_labels<json_archive>("cereal JSON");
}

bench::entry const added(&describe);

} // namespace
} // namespace serialization_bench
