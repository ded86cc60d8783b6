#include "pdf/SectionRecorder.h"

#include "pdf/ForwardingDevice.h"
#include "pdf/PDFEngine.h"

#include <utility>

namespace {

struct SectionRecorder : ForwardingDevice {
    fz_device* page;
    const TakeSection* take;
    fz_display_list* section; // null outside of one
    int depth;                // of the clips, groups and patterns in the section, its own included
    int blends;

    static SectionRecorder* of(fz_device* device) {
        return static_cast<SectionRecorder*>(reinterpret_cast<ForwardingDevice*>(device));
    }

    void record(fz_context* ctx) {
        section = fz_new_display_list(ctx, fz_infinite_rect);
        target = fz_new_list_device(ctx, section);
        blends = 0;
    }

    void drop(fz_context* ctx) {
        if (!section)
            return;
        fz_drop_device(ctx, std::exchange(target, page));
        fz_drop_display_list(ctx, std::exchange(section, nullptr));
    }

    void finish(fz_context* ctx) {
        fz_device* measure = nullptr;
        const auto hand = [&] {
            fz_close_device(ctx, target);
            fz_rect bounds = fz_empty_rect;
            measure = fz_new_bbox_device(ctx, &bounds);
            fz_run_display_list(ctx, section, measure, fz_identity, fz_infinite_rect, nullptr);
            fz_close_device(ctx, measure);
            (*take)({section, bounds, blends != 0});
        };
        runAndDrop(ctx, hand, [&] {
            fz_drop_device(ctx, measure);
            drop(ctx);
        });
    }
};

enum class Begins { level, section };

template <auto Call, Begins What, class... Arguments>
auto begin(fz_context* ctx, fz_device* device, Arguments... arguments) {
    SectionRecorder* recorder = SectionRecorder::of(device);
    if (What == Begins::section && !recorder->section)
        recorder->record(ctx);
    if (recorder->section)
        ++recorder->depth;
    return Call(ctx, recorder->target, arguments...);
}

void beginGroup(fz_context* ctx, fz_device* device, fz_rect area, fz_colorspace* space,
                int isolated, int knockout, int blendMode, float alpha) {
    if (blendMode != FZ_BLEND_NORMAL)
        SectionRecorder::of(device)->blends = 1;
    begin<fz_begin_group, Begins::level>(ctx, device, area, space, isolated, knockout, blendMode,
                                         alpha);
}

template <auto Call>
void end(fz_context* ctx, fz_device* device) {
    SectionRecorder* recorder = SectionRecorder::of(device);
    Call(ctx, recorder->target);
    if (recorder->section && --recorder->depth == 0)
        recorder->finish(ctx);
}

void dropRecorder(fz_context* ctx, fz_device* device) {
    SectionRecorder::of(device)->drop(ctx);
}

} // namespace

fz_device* newSectionRecorder(fz_context* ctx, fz_device* target, const TakeSection& take) {
    auto* recorder = ForwardingDevice::make<SectionRecorder>(ctx, target);
    recorder->page = target;
    recorder->take = &take;
    fz_device& device = recorder->super;
    device.drop_device = dropRecorder;
    device.clip_path = begin<fz_clip_path, Begins::level>;
    device.begin_group = beginGroup;
    device.clip_stroke_path = begin<fz_clip_stroke_path, Begins::section>;
    device.clip_text = begin<fz_clip_text, Begins::section>;
    device.clip_stroke_text = begin<fz_clip_stroke_text, Begins::section>;
    device.clip_image_mask = begin<fz_clip_image_mask, Begins::section>;
    device.begin_mask = begin<fz_begin_mask, Begins::section>;
    device.begin_tile = begin<fz_begin_tile_id, Begins::section>;
    device.pop_clip = end<fz_pop_clip>;
    device.end_group = end<fz_end_group>;
    device.end_tile = end<fz_end_tile>;
    return &device;
}
