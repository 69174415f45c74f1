% Random systems, eigenvalues and singular values, each judged by its own residual; prints "octave TESTS FAILURES".
rand("twister", 1);
tests = 0; failures = 0;
function [tests, failures] = judge(tests, failures, what, residual, bound)
  tests++;
  if !(residual <= bound)
    failures++;
    printf("# octave: %s: residual %g over %g\n", what, residual, bound);
  end
end
for type = {"double", "single"}
  for complex_data = [false true]
    for n = [1 2 5 17 64 150 301]
      a = rand(n) - 0.5; b = rand(n, 3) - 0.5;
      if complex_data, a += 1i * (rand(n) - 0.5); b += 1i * (rand(n, 3) - 0.5); end
      a = cast(a, type{1}); b = cast(b, type{1});
      e = eps(type{1}) * n * 10; what = sprintf("%s complex %d n %d", type{1}, complex_data, n);
      x = a \ b;
      [tests, failures] = judge(tests, failures, ["A\\b " what], norm(a * x - b, 1), e * (norm(a, 1) * norm(x, 1) + norm(b, 1)));
      x = b' / a;
      [tests, failures] = judge(tests, failures, ["b/A " what], norm(x * a - b', 1), e * (norm(a, 1) * norm(x, 1) + norm(b, 1)));
      [v, d] = eig(a);
      [tests, failures] = judge(tests, failures, ["eig " what], norm(a * v - v * d, 1), e * norm(a, 1) * norm(v, 1));
      h = a + a'; [v, d] = eig(h);
      [tests, failures] = judge(tests, failures, ["eig of a Hermitian " what], norm(h * v - v * d, 1), e * norm(h, 1) * norm(v, 1));
      [tests, failures] = judge(tests, failures, ["its vectors " what], norm(v' * v - eye(n), 1), e * sqrt(n));
      [u, s, v] = svd(a);
      [tests, failures] = judge(tests, failures, ["svd " what], norm(u * s * v' - a, 1), e * sqrt(n) * norm(a, 1));
      p = a * a' + n * eye(n, type{1}); r = chol(p);
      [tests, failures] = judge(tests, failures, ["chol " what], norm(r' * r - p, 1), e * norm(p, 1));
      [q, r] = qr(a);
      [tests, failures] = judge(tests, failures, ["qr " what], norm(q * r - a, 1), e * sqrt(n) * norm(a, 1));
    end
  end
end
printf("octave %d %d\n", tests, failures);
