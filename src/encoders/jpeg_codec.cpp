#include <csetjmp>
#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

#include <algorithm>
#include <cmath>

#include "encoders/raster_codecs.h"

namespace norvex {
namespace {

struct FailureHandler {
  jpeg_error_mgr manager;
  std::jmp_buf whereToGo;
};

void jumpOut(j_common_ptr codec) {
  std::longjmp(reinterpret_cast<FailureHandler*>(codec->err)->whereToGo, 1);
}
void sayNothing(j_common_ptr) {}

/// One row as the codec takes it. JPEG has no transparency.
void prepareRow(const uchar* from, uchar* to, const NSBitmapImageRep& raster) {
  const int samples = raster.pixelsWide * raster.samplesPerPixel;
  if (raster.hasAlpha) {
    overWhiteRow(from, to, raster.pixelsWide, raster.samplesPerPixel - 1);
  } else if (raster.samplesPerPixel == 4) {
    // Every reader expects the inks of a JPEG upside down, as the program that came first wrote them.
    std::transform(from, from + samples, to, [](uchar ink) { return static_cast<uchar>(255 - ink); });
  } else {
    std::copy(from, from + samples, to);
  }
}

void setUp(jpeg_compress_struct& codec, const NSBitmapImageRep& raster, const RasterProperties& properties) {
  codec.image_width = static_cast<JDIMENSION>(raster.pixelsWide);
  codec.image_height = static_cast<JDIMENSION>(raster.pixelsHigh);
  codec.input_components = raster.samplesPerPixel - (raster.hasAlpha ? 1 : 0);
  codec.in_color_space = codec.input_components == 4   ? JCS_CMYK
                         : codec.input_components == 1 ? JCS_GRAYSCALE
                                                       : JCS_RGB;
  jpeg_set_defaults(&codec);
  jpeg_set_quality(&codec, properties.quality.value_or(rowOf(PictureFormat::Jpeg).quality), TRUE);
  for (int i = 0; i < codec.num_components; ++i) {  // drawings have thin coloured lines: no subsampling
    codec.comp_info[i].h_samp_factor = codec.comp_info[i].v_samp_factor = 1;
  }
  codec.density_unit = 1;  // dots per inch
  codec.X_density = codec.Y_density =
      static_cast<UINT16>(std::clamp(std::lround(properties.dpi), 1L, 65535L));
}

/// Everything alive across libjpeg's long jumps is owned by the caller of this function, not by its frame.
bool writeJpeg(jpeg_compress_struct& codec, FailureHandler& failure, const NSBitmapImageRep& raster,
               const RasterProperties& properties, QByteArray& row) {
  if (setjmp(failure.whereToGo)) return false;
  setUp(codec, raster, properties);
  jpeg_start_compress(&codec, TRUE);
  if (!properties.iccProfile.isEmpty()) {
    jpeg_write_icc_profile(&codec, reinterpret_cast<const JOCTET*>(properties.iccProfile.constData()),
                           static_cast<unsigned>(properties.iccProfile.size()));
  }
  for (int y = 0; y < raster.pixelsHigh; ++y) {
    const auto* source =
        reinterpret_cast<const uchar*>(raster.data.constData()) + qsizetype(y) * raster.bytesPerRow;
    auto* line = reinterpret_cast<uchar*>(row.data());
    prepareRow(source, line, raster);
    JSAMPROW lines[1] = {line};
    jpeg_write_scanlines(&codec, lines, 1);
  }
  jpeg_finish_compress(&codec);
  return true;
}

}  // namespace

QByteArray encodeRaster(CodecOf<PictureFormat::Jpeg>, const NSBitmapImageRep& raster,
                        const RasterProperties& properties) {
  if (!encodableColor(raster)) return {};
  FailureHandler failure{};
  jpeg_compress_struct codec{};
  codec.err = jpeg_std_error(&failure.manager);
  failure.manager.error_exit = jumpOut;
  failure.manager.output_message = sayNothing;
  QByteArray row(raster.pixelsWide * 4, Qt::Uninitialized);
  unsigned char* memory = nullptr;
  unsigned long length = 0;
  jpeg_create_compress(&codec);
  jpeg_mem_dest(&codec, &memory, &length);
  const bool good = writeJpeg(codec, failure, raster, properties, row);
  QByteArray file;
  if (good) file = QByteArray(reinterpret_cast<const char*>(memory), static_cast<qsizetype>(length));
  jpeg_destroy_compress(&codec);
  std::free(memory);
  return file;
}

}  // namespace norvex
