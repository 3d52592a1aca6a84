import Corvane.Gallery

/// The guide's practice, untouched.
GuideSheet {
    step: "tryIt"
}
