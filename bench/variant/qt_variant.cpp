// QVariant, whose text is UTF-16 and whose small values stand in the variant itself.

#include <string>
#include <vector>

#include <QString>
#include <QVariant>

#include "variant/competition.hpp"

namespace variant_bench {
namespace {

void describe() {
	char const *const name = "QVariant";
	std::vector<QVariant> ints;
	std::vector<QVariant> texts;
	for (int const number : numbers()) {
		ints.emplace_back(number);
		texts.emplace_back(QString::fromStdString(std::to_string(number)));
		if (texts.back().toInt() != number || ints.back().toString().toStdString() != std::to_string(number)) {
			bench::disagree("the text of " + std::to_string(number) + " by QVariant");
		}
	}
	std::vector<QVariant> doubles;
	std::vector<QVariant> double_texts;
	for (std::size_t i = 0; i != fractions().size(); ++i) {
		doubles.emplace_back(fractions()[i]);
		double_texts.emplace_back(QString::fromStdString(fraction_texts()[i]));
		if (doubles.back().toString().toStdString() != fraction_texts()[i] ||
		    double_texts.back().toDouble() != fractions()[i]) {
			bench::disagree("the text of " + fraction_texts()[i] + " by QVariant");
		}
	}
	// Texts are shared as the library's values are; a number would just be copied.
	measure(copy_name, name, texts, [](QVariant const &value) { return QVariant(value); });
	measure(make_name, name, numbers(), [](int value) { return QVariant(value); });
	measure(to_int_name, name, texts, [](QVariant const &value) { return value.toInt(); });
	measure(to_text_name, name, ints, [](QVariant const &value) { return value.toString(); });
	measure(to_double_name, name, double_texts, [](QVariant const &value) { return value.toDouble(); });
	measure(from_double_name, name, doubles, [](QVariant const &value) { return value.toString(); });
}

bench::entry const added(&describe);

} // namespace
} // namespace variant_bench
