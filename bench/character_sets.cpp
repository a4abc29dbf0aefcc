// GB2312 and UTF-8: whole texts, and one character.
#include <iconv.h>

#include <memory>

#if defined(VELKORD_BENCH_ICU)
#include <unicode/ucnv.h>
#endif

#include "Velkord.h"
#include "cases.h"
#include "inputs.h"

namespace bench {

namespace {

uint32_t RandomHanzi(Random& random) {
  for (;;) {
    // 72 rows of 94 cells, of which the last row is not full.
    const uint32_t gb = (0xB0 + random.Next(72)) << 8 | (0xA1 + random.Next(94));
    if (unitoc(ctouni(gb)) == gb) return gb;
  }
}

struct Text {
  std::string gb;
  std::string utf8;
  size_t characters = 0;
};

// A text of about `bytes` bytes of GB2312, in runs of `run` characters, of which `asciiPercent` are
// ASCII.
Text MakeText(size_t bytes, uint32_t asciiPercent, size_t run) {
  Random random(static_cast<uint32_t>(bytes + asciiPercent + run));
  Text text;
  while (text.gb.size() < bytes) {
    const bool ascii = random.Next(100) < asciiPercent;
    for (size_t at = 0; at < run; ++at, ++text.characters) {
      const uint32_t code = ascii ? 'a' + random.Next(26) : RandomHanzi(random);
      if (!ascii) text.gb += static_cast<char>(code >> 8);
      text.gb += static_cast<char>(code);
      uint8_t form[6];
      const int32_t size = uniToUTF8(form, sizeof form, ascii ? code : ctouni(code));
      text.utf8.append(form, form + size);
    }
  }
  return text;
}

// A whole text brought from one character set to the other.
struct Conversion {
  std::string name;
  const char* from;
  const char* to;
  size_t characters;
  PageBuffer in;
  PageBuffer result;
  PageBuffer out;
};

void AddIconv(const Conversion& job) {
  const std::shared_ptr<void> converter(iconv_open(job.to, job.from), iconv_close);
  Add(job.name, "iconv", job.characters, [=] {
    char* in = job.in.Text();
    char* out = job.out.Text();
    size_t left = job.in.Size();
    size_t room = job.out.Size();
    Require(iconv(converter.get(), &in, &left, &out, &room) == 0 &&
                out == job.out.Text() + job.result.Size(),
            "iconv converts the text");
  });
}

#if defined(VELKORD_BENCH_ICU)
std::shared_ptr<UConverter> OpenIcu(const char* name) {
  UErrorCode code = U_ZERO_ERROR;
  std::shared_ptr<UConverter> converter(ucnv_open(name, &code), ucnv_close);
  Require(U_SUCCESS(code), "ICU has the converter");
  return converter;
}

void AddIcu(const Conversion& job) {
  Add(job.name, "icu", job.characters, [=, from = OpenIcu(job.from), to = OpenIcu(job.to)] {
    UChar pivot[1024];
    UChar* pivotIn = pivot;
    UChar* pivotOut = pivot;
    const char* in = job.in.Text();
    char* out = job.out.Text();
    UErrorCode code = U_ZERO_ERROR;
    ucnv_convertEx(to.get(), from.get(), &out, out + job.out.Size(), &in, in + job.in.Size(), pivot,
                   &pivotIn, &pivotOut, pivot + std::size(pivot), true, true, &code);
    Require(U_SUCCESS(code) && out == job.out.Text() + job.result.Size(), "ICU converts the text");
  });
}
#endif

void AddText(const std::string& name, const Text& text) {
  const PageBuffer gb(text.gb);
  const PageBuffer utf8(text.utf8);
  const PageBuffer out(2 * text.utf8.size() + 16);
  const Conversion toUtf8{"gb_to_utf8_" + name, "EUC-CN", "UTF-8", text.characters, gb, utf8, out};
  const Conversion toGb{"utf8_to_gb_" + name, "UTF-8", "EUC-CN", text.characters, utf8, gb, out};
  // zhsToUtf8s reads ASCII in pairs too: it does work of the same size then, but its result is
  // another text.
  Add(toUtf8.name, "velkord", text.characters, [=] {
    uint32_t size;
    zhsToUtf8s(gb.Data(), static_cast<int32_t>(gb.Size()), out.Data(), &size);
  });
  Add(toGb.name, "velkord", text.characters, [=] {
    uint32_t size;
    utf8sToZhs(utf8.Data(), utf8.Size(), out.Data(), &size);
    Require(size == gb.Size(), "the text is converted");
  });
  for (const Conversion& job : {toUtf8, toGb}) {
    AddCopy(job.name, job.characters, job.result, job.out);
    AddIconv(job);
#if defined(VELKORD_BENCH_ICU)
    AddIcu(job);
#endif
  }
}

void AddSingleCharacters() {
  constexpr size_t kCalls = 4096;
  std::vector<uint32_t> codes;
  std::vector<uint32_t> points;
  Random random(1);
  while (codes.size() < kCalls) {
    codes.push_back(RandomHanzi(random));
    points.push_back(ctouni(codes.back()));
  }
  Add("ctouni", "velkord", kCalls, [codes] {
    for (const uint32_t code : codes) benchmark::DoNotOptimize(ctouni(code));
  });
  Add("unitoc", "velkord", kCalls, [points] {
    for (const uint32_t point : points) benchmark::DoNotOptimize(unitoc(point));
  });
}

}  // namespace

void AddCharacterSets() {
  constexpr size_t kTextBytes = size_t{64} << 10;
  AddText("hanzi", MakeText(kTextBytes, 0, 1));
  AddText("mixed", MakeText(kTextBytes, 30, 1));
  AddText("mixed_runs", MakeText(kTextBytes, 30, 8));
  AddText("ascii", MakeText(kTextBytes, 100, 1));
  AddText("name", MakeText(36, 0, 18));
  AddSingleCharacters();
}

}  // namespace bench
