#include <map>
#include <unordered_map>

#include <pugixml.hpp>

#include "frame/frame.hpp"
#include "loading/competition.hpp"

namespace loading_bench {
namespace {

class maps final : public loaded {
public:
	explicit maps(char const *path) {
		pugi::xml_document document;
		if (!document.load_file(path)) {
			bench::disagree("pugixml finds a fault");
		}
		for (pugi::xml_node const catalog : document.child("xmc").children("catalog")) {
			auto &texts = m_languages[catalog.attribute("lang").value()];
			for (pugi::xml_node const message : catalog.children("msg")) {
				texts.emplace(message.attribute("name").value(), text_of(message));
			}
		}
	}

	std::size_t size() const override { return m_languages.at("en").size(); }
	std::string text(std::string_view name) const override {
		auto const &texts = m_languages.at("en");
		auto const found = texts.find(std::string(name));
		return found == texts.end() ? std::string() : found->second;
	}

private:
	std::map<std::string, std::unordered_map<std::string, std::string>> m_languages;

	static std::string text_of(pugi::xml_node const &message) {
		std::string text;
		for (pugi::xml_node const part : message.children()) {
			if (part.type() == pugi::node_pcdata) {
				text += part.value();
			} else if (part.name()[0] == 'b') {
				text += '\n';
			} else {
				text += '{';
				text += part.attribute("name").value();
				text += '}';
			}
		}
		return text;
	}
};

void load(char const *path, std::function<void(loaded const &)> const &use) {
	use(maps(path));
}

void describe() {
	compete("pugixml into a map", &load);
}

bench::entry const added(&describe);

} // namespace
} // namespace loading_bench
