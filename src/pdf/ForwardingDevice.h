#pragma once

#include <mupdf/fitz.h>

// A MuPDF device that passes every call on to another device, for those that watch or change a few
// of them. Derived structs must be trivial; a device is dropped with fz_drop_device(), its target
// is closed and dropped separately.
struct ForwardingDevice {
    fz_device super;
    fz_device* target;

    static fz_device* targetOf(fz_device* device) {
        return reinterpret_cast<ForwardingDevice*>(device)->target;
    }

    template <auto Call, class Result, class... Arguments>
    static Result forward(fz_context* ctx, fz_device* device, Arguments... arguments) {
        return Call(ctx, targetOf(device), arguments...);
    }

    template <class Device>
    static Device* make(fz_context* ctx, fz_device* target) {
        auto* made = fz_new_derived_device(ctx, Device);
        made->target = target;
        forwardAll(made->super);
        return made;
    }

private:
    static void forwardAll(fz_device& device) {
        device.fill_path = forward<fz_fill_path>;
        device.stroke_path = forward<fz_stroke_path>;
        device.clip_path = forward<fz_clip_path>;
        device.clip_stroke_path = forward<fz_clip_stroke_path>;
        device.fill_text = forward<fz_fill_text>;
        device.stroke_text = forward<fz_stroke_text>;
        device.clip_text = forward<fz_clip_text>;
        device.clip_stroke_text = forward<fz_clip_stroke_text>;
        device.ignore_text = forward<fz_ignore_text>;
        device.fill_shade = forward<fz_fill_shade>;
        device.fill_image = forward<fz_fill_image>;
        device.fill_image_mask = forward<fz_fill_image_mask>;
        device.clip_image_mask = forward<fz_clip_image_mask>;
        device.pop_clip = forward<fz_pop_clip>;
        device.begin_mask = forward<fz_begin_mask>;
        device.end_mask = forward<fz_end_mask>;
        device.begin_group = forward<fz_begin_group>;
        device.end_group = forward<fz_end_group>;
        device.begin_tile = forward<fz_begin_tile_id>;
        device.end_tile = forward<fz_end_tile>;
        device.render_flags = forward<fz_render_flags>;
        device.set_default_colorspaces = forward<fz_set_default_colorspaces>;
        device.begin_layer = forward<fz_begin_layer>;
        device.end_layer = forward<fz_end_layer>;
    }
};
