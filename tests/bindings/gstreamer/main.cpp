// SPDX-License-Identifier: MIT
// Tests with the element of this build, and a registry of plugins of their own.
#include <gst/gst.h>
#include <gtest/gtest.h>

int main(int count, char** arguments)
{
    g_setenv("GST_PLUGIN_PATH", ZORCC_GSTREAMER_FOLDER, TRUE);
    g_setenv("GST_REGISTRY", ZORCC_GSTREAMER_REGISTRY, TRUE);
    g_setenv("GST_REGISTRY_FORK", "no", TRUE);
    gst_init(nullptr, nullptr);
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
