// QSettings in its INI format, whose comments begin with a semicolon. It reads a section
// when it is first asked for something, hence the list of all keys.

#include <filesystem>
#include <string>

#include <QSettings>
#include <QString>
#include <QStringList>

#include "config/competition.hpp"

namespace config_bench {
namespace {

constexpr char const *name = "QSettings";

class ini_settings {
public:
	explicit ini_settings(config_file const &source) : ini_settings(source.semicolon_path) {}

	contents all() const {
		contents result;
		for (QString const &key : keys) {
			std::string plain_key = key.toStdString();
			plain_key[plain_key.find('/')] = '.';
			result[plain_key] = settings.value(key).toString().toStdString();
		}
		return result;
	}

protected:
	explicit ini_settings(std::string const &path)
	    : settings(QString::fromStdString(path), QSettings::IniFormat), keys(settings.allKeys()) {}

	QSettings settings;

private:
	QStringList keys;
};

// Objects for one path share what they have read, and loading would find nothing to do
// while this one lives, so it reads a copy.
class asked_settings : public ini_settings {
public:
	using key_type = QString;

	explicit asked_settings(config_file const &source) : ini_settings(copy(source.semicolon_path)) {}

	key_type key(setting const &one) const { return QString::fromStdString(one.section + "/" + one.name); }
	QString text(key_type const &key) const { return settings.value(key).toString(); }
	int number(key_type const &key) const { return settings.value(key).toInt(); }
	static std::string plain(QString const &text) { return text.toStdString(); }

private:
	static std::string copy(std::string const &path) {
		std::string made = path + ".asked";
		std::filesystem::copy_file(path, made, std::filesystem::copy_options::skip_existing);
		return made;
	}
};

void describe() {
	compete<ini_settings, asked_settings>(name);
}

bench::entry const added(&describe);

} // namespace
} // namespace config_bench
