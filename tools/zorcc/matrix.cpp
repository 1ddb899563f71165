// SPDX-License-Identifier: MIT
#include "matrix.h"

#include "error.h"
#include "formats.h"
#include "names.h"

namespace zorcc::tool {

using interface::Model;

namespace {

bool isHd(ZorSize size) { return size.height >= 720; }

} // namespace

Model usualMatrix(ZorSize size) { return isHd(size) ? Model::bt709 : Model::bt601; }

Model matrixNamed(const std::string& name)
{
    std::vector<std::string> known;
    for (const interface::ModelProperties& row : interface::models) {
        if (!interface::isYcc(row.model) || row.model == Model::anyYcc) continue;
        if (row.matrix == inSmallLetters(name)) return row.model;
        known.emplace_back(row.matrix);
    }
    throw UsageError(quoted(name) + " is no matrix: " + joined(known));
}

Matrix ownMatrix(const Format& format)
{
    if (!isYuv(format) || format.model == Model::yuv || format.model == Model::anyYcc) return {};
    return format.model;
}

Model matrixOf(const Picture& picture, const VideoTags& tags, Matrix named)
{
    if (const Matrix own = ownMatrix(picture.format())) return *own;
    if (named) return *named;
    if (tags.range != "FULL") return usualMatrix(picture.visible());
    if (isHd(picture.visible())) return Model::bt709full;
    throw Cause("full range by BT.601 has no exact function: --matrix yuv, bt601, bt709 or bt709full says what to take "
                "it for");
}

Picture withMatrix(Picture picture, const VideoTags& tags, Matrix named)
{
    if (!isYuv(picture.format())) return picture;
    const Format* const found = twin(picture.format(), matrixOf(picture, tags, named));
    return found ? std::move(picture).takenFor(*found) : std::move(picture);
}

} // namespace zorcc::tool
