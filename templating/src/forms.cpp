#include "templating/forms.h"

#include "foundation/unreachable.h"

#include <charconv> // std::from_chars
#include <memory>   // std::unique_ptr

namespace specloom::templating {
namespace {

// A mark is the place of a text among the others, between two signs that no template has.
constexpr char markBegin = '\x02';
constexpr char markEnd = '\x03';

} // namespace

std::string Forms::fill(std::string_view templateName, const Texts& texts) {
    if (texts.size() > 64)
        SPECLOOM_UNREACHABLE("more texts than a form has bits for");
    EmptyTexts key = 0;
    for (std::size_t i = 0; i < texts.size(); ++i)
        key |= EmptyTexts{texts[i].second.empty()} << i;
    auto byTemplate = forms_.find(templateName);
    if (byTemplate == forms_.end())
        byTemplate = forms_.try_emplace(std::string(templateName)).first;
    auto found = byTemplate->second.find(key);
    if (found == byTemplate->second.end())
        found = byTemplate->second.emplace(key, formOf(templateName, texts)).first;
    const Form& form = found->second;
    std::size_t size = form.fixed.size();
    for (const Form::Gap& gap : form.gaps)
        size += texts[gap.text].second.size();
    std::string filled;
    filled.reserve(size);
    std::size_t begin = 0;
    for (const Form::Gap& gap : form.gaps) {
        filled.append(form.fixed, begin, gap.offset - begin).append(texts[gap.text].second);
        begin = gap.offset;
    }
    return filled.append(form.fixed, begin);
}

Forms::Form Forms::formOf(std::string_view templateName, const Texts& texts) const {
    const std::unique_ptr<jv::JV> data = jv::JV::newObject();
    for (std::size_t i = 0; i < texts.size(); ++i)
        data->setString(texts[i].first,
                        texts[i].second.empty() ? "" : markBegin + std::to_string(i) + markEnd);
    const std::string marked = templates_->render(templateName, *data);
    Form form;
    std::size_t begin = 0;
    for (std::size_t at = marked.find(markBegin); at != std::string::npos; at = marked.find(markBegin, at)) {
        form.fixed.append(marked, begin, at - begin);
        const std::size_t end = marked.find(markEnd, at);
        Form::Gap gap = {form.fixed.size(), 0};
        std::from_chars(marked.data() + at + 1, marked.data() + end, gap.text);
        form.gaps.push_back(gap);
        begin = at = end + 1;
    }
    form.fixed.append(marked, begin);
    return form;
}

} // namespace specloom::templating
