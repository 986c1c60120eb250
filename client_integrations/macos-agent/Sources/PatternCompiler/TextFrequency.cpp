#include "PatternCompiler/TextFrequency.h"

#include <algorithm>
#include <utility>

namespace quillseal::screening {
namespace {

// Words that are far more common than their letters: rounded estimates, places of the word for each
// place of the text.
constexpr std::pair<std::u32string_view, double> commonWords[] = {
    {U"the", .012},  {U"and", .006},  {U"you", .005},    {U"to", .007},    {U"of", .006},
    {U"in", .005},   {U"is", .003},   {U"for", .003},    {U"it", .003},    {U"that", .003},
    {U"on", .003},   {U"your", .002}, {U"be", .003},     {U"are", .002},   {U"this", .002},
    {U"with", .002}, {U"have", .002}, {U"we", .002},     {U"as", .002},    {U"or", .002},
    {U"will", .001}, {U"not", .001},  {U"from", .001},   {U"at", .002},    {U"by", .001},
    {U"can", .001},  {U"an", .001},   {U"my", .001},     {U"our", .001},   {U"if", .001},
    {U"has", .001},  {U"all", .001},  {U"please", .001}, {U"been", .001},  {U"what", .001},
    {U"here", .001}, {U"her", .001},  {U"his", .001},    {U"their", .001}, {U"would", .001}};

}  // namespace

double expectedFrequency(char32_t c) {
  // Four fifths of the relative frequencies of English letters (R. E. Lewand, Cryptological
  // Mathematics, 2000); the rest of a text is no letters.
  constexpr double letters[] = {.065, .012, .022, .032, .100, .018, .016, .049, .056,
                                .001, .006, .033, .020, .057, .060, .015, .001, .050,
                                .051, .073, .023, .008, .019, .001, .016, .001};
  if (c >= 'a' && c <= 'z') return letters[c - 'a'];
  if (c >= '0' && c <= '9') return .004;
  switch (c) {
    case ' ':
      return .170;
    case '\n':
      return .020;
    case '.':
    case ',':
      return .010;
    case '-':
    case '\'':
      return .004;
    default:
      return c < 0x80 ? .001 : .002;
  }
}

double expectedFrequency(std::u32string_view literal) {
  double product = 1;
  for (const char32_t c : literal)
    product *= expectedFrequency(c);
  const std::size_t first = literal.find_first_not_of(U' ');
  const std::size_t behind = literal.find_last_not_of(U' ') + 1;
  if (first != std::u32string_view::npos)
    for (const auto& [word, frequency] : commonWords)
      if (literal.substr(first, behind - first) == word) product = std::max(product, frequency);
  return product;
}

}  // namespace quillseal::screening
