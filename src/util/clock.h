#pragma once
// The computer's clock behind an interface, so tests can set the time.
namespace kvl {

// Dates are days since 30 December 1899, with the time as the fraction.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual double now() const = 0;
};

class SystemClock : public Clock {
 public:
  double now() const override;  // local time
};

class FixedClock : public Clock {
 public:
  explicit FixedClock(double t) : t_(t) {}
  double now() const override { return t_; }
  void set(double t) { t_ = t; }

 private:
  double t_;
};

}  // namespace kvl
