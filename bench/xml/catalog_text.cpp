#include "xml/catalog_text.hpp"

#include <algorithm>
#include <cstdint>
#include <random>

namespace xml_bench {
namespace {

constexpr std::size_t catalogs = 8;
constexpr std::size_t group = 40;

constexpr char const *areas[] = {"account", "backup", "dialog", "export", "import", "menu",
                                 "network", "print",  "search", "server", "status", "transfer"};
constexpr char const *objects[] = {"archive", "certificate", "connection", "document", "file",
                                   "folder",  "history",     "layout",     "message",  "password",
                                   "picture", "printer",     "window",     "workspace"};
constexpr char const *uses[] = {"added",   "confirm_delete", "error", "hint", "label",
                                "missing", "renamed",        "title", "tip",  "warning"};
constexpr char const *words[] = {
    "the",      "of",       "a",     "file",     "and",   "is",     "not",       "selected", "to",          "server",
    "has",      "been",     "for",   "with",     "this",  "folder", "changes",   "please",   "connection",  "saved",
    "can't",    "be",       "found", "Größe",    "again", "later",  "user's",    "password", "permission",  "denied",
    "document", "password", "more",  "settings", "in",    "on",     "automatic", "during",   "translation", "naïve"};
constexpr char const *arguments[] = {
    "<arg name=\"file\"/>",
    "<arg name=\"count\" type=\"int\"/>",
    "<arg name=\"size\" type=\"memory\"/>",
    "<arg name=\"rate\" type=\"double\" precision=\"2\"/>",
    "<arg name=\"name\" type=\"string\"/>",
    "<arg name=\"user\"/>",
};

class writer {
public:
	std::string text = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!-- Texts of the program, in English. -->\n"
	                   "<xmc version=\"1.1\">\n";

	void catalog(std::size_t number, std::size_t messages) {
		text += "\t<catalog name=\"part_" + std::to_string(number) + "\" lang=\"en\">\n";
		std::string beginning;
		for (std::size_t i = 0; i != messages; ++i) {
			if (i % group == 0) {
				beginning = std::string(pick(areas)) + "." + pick(objects);
				text += "\t\t<!-- " + beginning + " -->\n";
			}
			message(beginning);
		}
		text += "\t</catalog>\n";
	}

private:
	std::mt19937_64 m_random{2900};
	std::size_t m_number = 0;

	std::size_t below(std::size_t bound) { return static_cast<std::size_t>(m_random() % bound); }

	template <std::size_t Size>
	char const *pick(char const *const (&list)[Size]) {
		return list[below(Size)];
	}

	void message(std::string const &beginning) {
		text += "\t\t<msg name=\"" + beginning + "." + pick(uses) + "_" + std::to_string(++m_number) + "\"";
		if (below(16) == 0) {
			text += " meta=\"a hint for the translator\"";
		}
		text += ">";
		std::size_t const sentence = 3 + below(11);
		bool argument = true;
		for (std::size_t i = 0; i != sentence; ++i) {
			argument = !argument && below(9) == 0;
			text += i == 0 ? "" : " ";
			text += argument ? pick(arguments) : pick(words);
		}
		text += end();
		text += "</msg>\n";
	}

	char const *end() {
		switch (below(12)) {
		case 0:
			return ": &quot;none&quot;.";
		case 1:
			return " &amp; continue?";
		case 2:
			return ".<br/>Try again.";
		case 3:
			return "!";
		default:
			return ".";
		}
	}
};

} // namespace

std::string catalog_text(std::size_t messages) {
	writer made;
	for (std::size_t i = 0; i != catalogs; ++i) {
		made.catalog(i, messages * (i + 1) / catalogs - messages * i / catalogs);
	}
	return made.text + "</xmc>\n";
}

} // namespace xml_bench
