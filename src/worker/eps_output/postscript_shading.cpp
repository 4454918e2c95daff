#include "worker/eps_output/postscript_shading.h"

#include <algorithm>
#include <cmath>

#include "worker/eps_output/eps_writing.h"
#include "worker/pdf/pdf_numbers.h"

namespace norvex::engine {
namespace {

constexpr int kPlaces = 1024;                // intervals along one parameter
constexpr int kPlacesOfTwo = 256;            // and along each of two
constexpr double kUnseen = 1.0 / 1020;       // a quarter of the step of eight bits
constexpr qsizetype kLongestString = 65000;  // PostScript ends at 65535 bytes
constexpr qsizetype kWorthPacking = 1000;
constexpr double kMostOfThreeBytes = 16384;  // units over which a coordinate of 24 bits is a thousandth exact

struct Range {
  double low = 0;
  double high = 1;
};

QByteArray numbers(const std::vector<Range>& ranges) {
  QByteArray text = "[";
  for (const Range& range : ranges) text += significant(range.low) + ' ' + significant(range.high) + ' ';
  return text.replace(text.size() - 1, 1, "]");
}

// 0 … 1 where that holds all values, because most colours are there; else from the least to the greatest.
Range rangeOf(const std::vector<double>& values, size_t first, size_t step) {
  Range range;
  if (first >= values.size()) return range;
  double low = values[first];
  double high = low;
  for (size_t i = first; i < values.size(); i += step) {
    low = std::min(low, values[i]);
    high = std::max(high, values[i]);
  }
  if (low >= 0 && high <= 1) return range;
  return {low, high > low ? high : low + 1};
}

std::vector<Range> rangesOf(const std::vector<double>& values, int components) {
  std::vector<Range> ranges;
  for (int i = 0; i < components; ++i) ranges.push_back(rangeOf(values, size_t(i), size_t(components)));
  return ranges;
}

void putBits(QByteArray& to, double value, const Range& range, int bytes) {
  const double most = std::ldexp(1.0, 8 * bytes) - 1;
  const double share = std::clamp((value - range.low) / (range.high - range.low), 0.0, 1.0);
  const auto bits = quint32(std::llround(share * most));
  for (int i = bytes - 1; i >= 0; --i) to += char(bits >> (8 * i));
}

QByteArray literal(const QByteArray& bytes) {
  return "<~" + ascii85(bytes);
}

// A string, or a file in which can be gone back: functions ask for one.
QByteArray dataSource(const QByteArray& bytes) {
  if (bytes.size() <= kWorthPacking) return literal(bytes);
  const QByteArray packed = qCompress(bytes).mid(4);
  QByteArray parts = "[";
  for (qsizetype at = 0; at < packed.size(); at += kLongestString)
    parts += literal(packed.mid(at, kLongestString)) + '\n';
  return parts + "] NorvexFile";
}

// Two bytes a number where one would be too coarse: beyond 0 … 1 colours may be of any size.
int bytesOf(const std::vector<Range>& ranges) {
  return std::all_of(ranges.begin(), ranges.end(), [](const Range& r) { return r.low == 0 && r.high == 1; })
             ? 1
             : 2;
}

QByteArray functionText(const QByteArray& domain, const QByteArray& size, int components,
                        const std::vector<double>& samples) {
  const std::vector<Range> ranges = rangesOf(samples, components);
  const int bytes = bytesOf(ranges);
  QByteArray data;
  data.reserve(qsizetype(samples.size()) * bytes);
  for (size_t i = 0; i < samples.size(); ++i)
    putBits(data, samples[i], ranges[i % size_t(components)], bytes);
  return "<< /FunctionType 0 /Domain " + domain + " /Range " + numbers(ranges) + " /Size [" + size +
         "] /BitsPerSample " + QByteArray::number(8 * bytes) + " /DataSource\n" + dataSource(data) + " >>";
}

double finite(double value) {
  return std::isfinite(value) ? value : 0;
}

// True if every step-th place with lines between them gives all places again.
bool stillGives(const std::vector<double>& all, size_t step, size_t components,
                const std::vector<Range>& ranges) {
  const size_t places = all.size() / components;
  for (size_t place = 0; place < places; ++place) {
    const size_t from = std::min(place / step * step, places - 1 - step);
    const double part = double(place - from) / double(step);
    for (size_t c = 0; c < components; ++c) {
      const double there =
          all[from * components + c] * (1 - part) + all[(from + step) * components + c] * part;
      if (std::abs(there - all[place * components + c]) > kUnseen * (ranges[c].high - ranges[c].low))
        return false;
    }
  }
  return true;
}

// The same in both directions of the square of kPlacesOfTwo.
bool stillGivesPlane(const std::vector<double>& all, int step, size_t components,
                     const std::vector<Range>& ranges) {
  constexpr int side = kPlacesOfTwo + 1;
  for (int y = 0; y < side; ++y)
    for (int x = 0; x < side; ++x) {
      const int left = std::min(x / step * step, kPlacesOfTwo - step);
      const int low = std::min(y / step * step, kPlacesOfTwo - step);
      const double across = double(x - left) / step;
      const double up = double(y - low) / step;
      for (size_t c = 0; c < components; ++c) {
        const auto at = [&](int column, int row) {
          return all[(size_t(row) * side + size_t(column)) * components + c];
        };
        const double below = at(left, low) * (1 - across) + at(left + step, low) * across;
        const double above = at(left, low + step) * (1 - across) + at(left + step, low + step) * across;
        if (std::abs(below * (1 - up) + above * up - at(x, y)) > kUnseen * (ranges[c].high - ranges[c].low))
          return false;
      }
    }
  return true;
}

}  // namespace

// A shading that the interpreter refuses leaves its place unpainted instead of ending the job. An array of
// strings becomes a procedure that gives one string after the other and then an empty one.
QByteArray shadingProcedures() {
  return R"(xpdf begin
/NorvexShade {
  { shfill } stopped { pop $error /newerror false put } if
} def
/NorvexNext {
  dup aload pop
  2 copy exch length lt
  { 2 copy get 4 1 roll exch pop 1 add 1 exch put }
  { pop pop pop () } ifelse
} def
/NorvexFile {
  0 2 array astore /NorvexNext load /exec cvx 3 array astore cvx
  /FlateDecode filter /ReusableStreamDecode filter
} def
end
)";
}

QByteArray sampledFunction(double domain0, double domain1, int components, const ColourAlong& colour) {
  const auto count = size_t(components);
  std::vector<double> all(size_t(kPlaces + 1) * count);
  for (int i = 0; i <= kPlaces; ++i) colour(double(i) / kPlaces, &all[size_t(i) * count]);
  for (double& value : all) value = finite(value);
  const std::vector<Range> ranges = rangesOf(all, components);
  size_t step = kPlaces;
  while (step > 1 && !stillGives(all, step, count, ranges)) step /= 2;
  std::vector<double> samples;
  for (size_t place = 0; place <= kPlaces; place += step)
    samples.insert(samples.end(), &all[place * count], &all[place * count] + count);
  return functionText(numbers({{domain0, domain1}}), QByteArray::number(qsizetype(samples.size() / count)),
                      components, samples);
}

QByteArray sampledFunction(const double (&domain)[4], int components, const ColourAt& colour) {
  constexpr int side = kPlacesOfTwo + 1;
  const auto count = size_t(components);
  std::vector<double> all(size_t(side) * side * count);
  double* to = all.data();
  for (int y = 0; y < side; ++y)
    for (int x = 0; x < side; ++x, to += components)
      colour(double(x) / kPlacesOfTwo, double(y) / kPlacesOfTwo, to);
  for (double& value : all) value = finite(value);
  const std::vector<Range> ranges = rangesOf(all, components);
  int step = kPlacesOfTwo;
  while (step > 1 && !stillGivesPlane(all, step, count, ranges)) step /= 2;
  std::vector<double> samples;
  for (int y = 0; y < side; y += step)
    for (int x = 0; x < side; x += step) {
      const double* place = &all[(size_t(y) * side + size_t(x)) * count];
      samples.insert(samples.end(), place, place + count);
    }
  const QByteArray size = QByteArray::number(kPlacesOfTwo / step + 1);
  return functionText(numbers({{domain[0], domain[1]}, {domain[2], domain[3]}}), size + ' ' + size,
                      components, samples);
}

void ShadingMesh::add(const double* points, const double* colours) {
  const int coordinates = 2 * pointsOfPiece();
  const int values = components_ * coloursOfPiece();
  const auto isFinite = [](double value) {
    return std::isfinite(float(value));
  };  // interpreters count in these
  if (!std::all_of(points, points + coordinates, isFinite) ||
      !std::all_of(colours, colours + values, isFinite))
    return;
  points_.insert(points_.end(), points, points + coordinates);
  colours_.insert(colours_.end(), colours, colours + values);
}

QByteArray ShadingMesh::entries(const QByteArray& function) const {
  if (points_.empty()) return {};
  std::vector<Range> ranges{rangeOf(points_, 0, 2), rangeOf(points_, 1, 2)};
  const double extent = std::max(ranges[0].high - ranges[0].low, ranges[1].high - ranges[1].low);
  const int coordinateBytes = extent > kMostOfThreeBytes ? 4 : 3;
  const std::vector<Range> colourRanges = rangesOf(colours_, components_);
  const auto isEightBit = [](double value) { return std::abs(value * 255 - std::round(value * 255)) < 0.01; };
  const bool eightBits =
      bytesOf(colourRanges) == 1 && std::all_of(colours_.begin(), colours_.end(), isEightBit);
  const int colourBytes = eightBits ? 1 : 2;

  const bool triangles = kind_ == Kind::Triangles;
  const size_t pieces = points_.size() / size_t(2 * pointsOfPiece());
  QByteArray data;
  const double* point = points_.data();
  const double* colour = colours_.data();
  const auto putPoint = [&] {
    for (int k = 0; k < 2; ++k) putBits(data, *point++, ranges[size_t(k)], coordinateBytes);
  };
  const auto putColour = [&] {
    for (int k = 0; k < components_; ++k) putBits(data, *colour++, colourRanges[size_t(k)], colourBytes);
  };
  for (size_t piece = 0; piece < pieces; ++piece) {
    if (triangles) {
      for (int k = 0; k < 3; ++k) data += '\0', putPoint(), putColour();
    } else {
      data += '\0';
      for (int k = 0; k < 16; ++k) putPoint();
      for (int k = 0; k < 4; ++k) putColour();
    }
  }
  ranges.insert(ranges.end(), colourRanges.begin(), colourRanges.end());
  return QByteArray("/ShadingType ") + (triangles ? "4" : "7") + " /BitsPerFlag 8 /BitsPerCoordinate " +
         QByteArray::number(8 * coordinateBytes) + " /BitsPerComponent " +
         QByteArray::number(8 * colourBytes) + "\n/Decode " + numbers(ranges) +
         (function.isEmpty() ? QByteArray() : "\n/Function " + function) + "\n/DataSource\n" +
         dataSource(data);
}

}  // namespace norvex::engine
