// A client in C#: late and early bound, named arguments, exceptions, two apartments. Its facts come
// from the command line, each in a line: HPT 10 773.15 = 3373.998...
// Their first is an enthalpy of pressure and temperature, their last a turbine.
using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;
using System.Threading;
using CALVEXLib;

static class Client {
  static int checks;

  static void Check(string what, object found, object wanted) {
    Interlocked.Increment(ref checks);
    var same = found is double a && wanted is double b ? Math.Abs(a - b) <= 1e-12 * Math.Abs(b)
                                                       : Equals(found, wanted);
    if (same) return;
    Console.WriteLine($"{what}: {found} instead of {wanted}");
    Environment.Exit(1);
  }

  class Fact {
    public string Member;
    public double[] Inputs;
    public double[] Results;
    public object[] Arguments() => Results.Select(_ => 0.0).Concat(Inputs).Cast<object>().ToArray();
    public object[] Answered() => Results.Concat(Inputs).Cast<object>().ToArray();
    public override string ToString() => Member + " " + string.Join(" ", Inputs);
  }

  static List<Fact> Read(string file) {
    double[] Numbers(string text) =>
        text.Split(' ').Select(word => double.Parse(word, CultureInfo.InvariantCulture)).ToArray();
    Fact Line(string line) {
      var name = line.Substring(0, line.IndexOf(' '));
      var sides = line.Substring(name.Length + 1).Split(" = ");
      return new Fact {Member = name, Inputs = Numbers(sides[0]), Results = Numbers(sides[1])};
    }
    return File.ReadLines(file).Select(Line).ToList();
  }

  static object New() => Activator.CreateInstance(Type.GetTypeFromProgID("Calvex32.ZvCalvex.3", true));

  // By name, the first arguments being outputs.
  static object Invoke(object steam, string member, object[] arguments, int count = 1,
                       string[] names = null) {
    var outputs = new ParameterModifier(arguments.Length);
    for (var i = 0; i < count; ++i) outputs[i] = true;
    return steam.GetType().InvokeMember(member, BindingFlags.InvokeMethod, null, steam, arguments,
        new[] {outputs}, null, names);
  }

  static object Get(object steam, string property) =>
      steam.GetType().InvokeMember(property, BindingFlags.GetProperty, null, steam, null);

  static void CheckAnswered(string what, object[] arguments, Fact fact) {
    var wanted = fact.Answered();
    for (var i = 0; i < wanted.Length; ++i) Check($"{fact}, {what}, {i}", arguments[i], wanted[i]);
  }

  static void LateBound(object steam, Fact fact) {
    var arguments = fact.Arguments();
    Check(fact + ", answer", Invoke(steam, fact.Member, arguments, fact.Results.Length), 1);
    CheckAnswered("late bound", arguments, fact);
  }

  // A call of the interface's function by its place, as compiled calls are.
  static void EarlyBound(IZvCalvex steam, Fact fact) {
    var arguments = fact.Arguments();
    Check(fact + ", answer", typeof(IZvCalvex).GetMethod(fact.Member).Invoke(steam, arguments), 1);
    CheckAnswered("early bound", arguments, fact);
  }

  static void NamedArguments(object steam, Fact fact) {
    var swapped = new object[] {0.0, fact.Inputs[1], fact.Inputs[0]};
    Check("named, answer", Invoke(steam, fact.Member, swapped, 1, new[] {"pH", "T", "P"}), 1);
    Check("named", swapped[0], fact.Results[0]);
  }

  static void Settings(IZvCalvex steam) {
    Check("the setting as it starts", steam.get_TraceLevel(), (short)0);
    steam.set_TraceLevel(1);
    Check("the setting, put", steam.get_TraceLevel(), (short)1);
    steam.set_TraceLevel(0);
  }

  static void Failures(object late, IZvCalvex early) {
    var arguments = new object[] {-7.0, 10.0, 3000.0};
    Check("a failed call", Invoke(late, "HPT", arguments), 0);
    Check("its result stays", arguments[0], -7.0);
    const string reason = "Temperature parameter out of range (Valid range 260.00 to 2500.00 K).";
    Check("its reason, late bound", Get(late, "LastError"), reason);
    Check("its reason, early bound", early.get_LastError(), reason);
  }

  delegate int HptFunction(IntPtr self, IntPtr h, double p, double t, out int answer);

  static void Exceptions(object late, IZvCalvex early) {
    void Throws(string what, Type type, int code, string message, Action call) {
      try {
        call();
      } catch (Exception thrown) {
        var inner = thrown is TargetInvocationException ? thrown.InnerException : thrown;
        Check(what, inner.GetType(), type);
        if (code != 0) Check(what + ", its number", inner.HResult, code);
        if (message != "") Check(what + ", its text", inner.Message, message);
        return;
      }
      Check(what, "nothing", type);
    }
    Throws("no such member", typeof(COMException), unchecked((int)0x80020006), "",
           () => Invoke(late, "HPX", new object[] {0.0}));
    Throws("a text that is no number", typeof(COMException), unchecked((int)0x80020005), "",
           () => Invoke(late, "HPT", new object[] {0.0, "ten", 773.15}));
    Throws("an argument too few", typeof(TargetParameterCountException), 0, "",
           () => Invoke(late, "HPT", new object[] {0.0, 10.0}));
    // What C# itself does not let happen: no place for the result.
    var methods = typeof(IZvCalvex).GetMethods().OrderBy(method => method.MetadataToken).ToList();
    var slot = 7 + methods.FindIndex(method => method.Name == "HPT");  // behind those of IDispatch
    var self = Marshal.GetComInterfaceForObject(early, typeof(IZvCalvex));
    var function = Marshal.GetDelegateForFunctionPointer<HptFunction>(
        Marshal.ReadIntPtr(Marshal.ReadIntPtr(self), slot * IntPtr.Size));
    const string text = "An argument that takes a result is a null pointer.";
    Throws("no place for the result", typeof(NullReferenceException), unchecked((int)0x80004003), text,
           () => Marshal.ThrowExceptionForHR(function(self, IntPtr.Zero, 10, 773.15, out _)));
    Marshal.Release(self);
  }

  static void Arrays(IZvCalvex steam, Fact turbine) {
    object table = null;
    var x = turbine.Inputs;
    Check("XL, answer", steam.XLTurbineA(x[0], x[1], x[2], x[3], x[4], "Pow, T_Out", ref table), 1);
    var rows = (object[,])table;
    Check("rows", rows.GetLength(0), 2);
    Check("power", rows[0, 1], turbine.Results[0]);
    Check("its unit", rows[0, 2], "kW");
    Check("temperature", rows[1, 1], turbine.Results[1]);
  }

  // Each apartment has its own object; both call at once.
  static void Apartments(List<Fact> facts) {
    Exception failed = null;
    var threads = Enumerable.Range(0, 2).Select(_ => new Thread(() => {
      try {
        var late = New();
        var early = (IZvCalvex)late;
        for (var i = 0; i < 300; ++i) {
          foreach (var fact in facts) EarlyBound(early, fact);
        }
        foreach (var fact in facts) LateBound(late, fact);
      } catch (Exception thrown) {
        failed = thrown;
      }
    })).ToList();
    foreach (var thread in threads) thread.SetApartmentState(ApartmentState.STA);
    foreach (var thread in threads) thread.Start();
    foreach (var thread in threads) thread.Join();
    Check("two apartments", failed?.ToString(), null);
  }

  [STAThread]
  static void Main(string[] arguments) {
    var facts = Read(arguments[0]);
    Check("facts", facts.Count > 3, true);
    var late = New();
    var early = (IZvCalvex)late;
    foreach (var fact in facts) {
      LateBound(late, fact);
      EarlyBound(early, fact);
    }
    Check("compiled, answer", early.HPT(out var h, facts[0].Inputs[0], facts[0].Inputs[1]), 1);
    Check("compiled", h, facts[0].Results[0]);
    NamedArguments(late, facts[0]);
    Settings(early);
    Failures(late, early);
    Exceptions(late, early);
    Arrays(early, facts.Last());
    Apartments(facts);
    Console.WriteLine($"{checks} checks passed");
  }
}
